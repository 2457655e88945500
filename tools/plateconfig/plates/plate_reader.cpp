#include "plateconfig/plates/plate_reader.h"

#include "plateconfig/input/input_form.h"

namespace plateconfig {

std::unique_ptr<PlateReader> ReadPlates(std::istream& in, const std::string& file,
                                        const PlateVocabulary& vocabulary, Reporter& reporter) {
  return IsJson(in, file) ? ReadPlatesFromJson(in, file, vocabulary, reporter)
                          : ReadPlatesFromCsv(in, file, vocabulary, reporter);
}

}  // namespace plateconfig
