#include "plateconfig/plates/plate_reader.h"

#include "plateconfig/input/input_form.h"

namespace plateconfig {

std::unique_ptr<PlateReader> ReadPlates(std::istream& in, const std::string& file,
                                        const PlateVocabulary& vocabulary, Reporter& reporter) {
  return ReadRecords(in, file, PlateFields(vocabulary), reporter);
}

}  // namespace plateconfig
