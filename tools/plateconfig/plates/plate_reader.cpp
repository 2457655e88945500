#include "plateconfig/plates/plate_reader.h"

#include <utility>

#include "plateconfig/input/input_form.h"

namespace plateconfig {

std::unique_ptr<PlateReader> ReadPlates(std::istream& in, const std::string& file,
                                        const PlateVocabulary& vocabulary, Reporter& reporter,
                                        std::function<bool(const PlateInput& plate)> wants) {
  RecordKind<PlateInput> kind = PlateFields(vocabulary);
  kind.wants = std::move(wants);
  return ReadRecords(in, file, std::move(kind), reporter);
}

}  // namespace plateconfig
