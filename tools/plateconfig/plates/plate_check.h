#pragma once

// What is to be told of plates that are evaluated for a check: plates without a row or a text, of one name,
// and what the rules ask for and a file does not have.

#include <istream>
#include <string>

#include "plateconfig/messages/reporter.h"
#include "plateconfig/plates/plate_names.h"
#include "plateconfig/plates/plate_reader.h"
#include "plateconfig/plates/plate_vocabulary.h"
#include "rules/rule_tables.h"

namespace plateconfig {

class PlateCheck {
 public:
  /// All are referred to.
  PlateCheck(const RuleTables& tables, Reporter& reporter)
      : tables_(tables), vocabulary_(tables.processRules), reporter_(reporter), names_(reporter) {}

  /// Reads the plates of a file and reports what is to be told; gives how many there were.
  std::size_t Read(std::istream& in, const std::string& file);

  /// Reports the features that conditions of the process list ask for and the header of a file in CSV lacks.
  void CheckHeader(std::istream& in, const std::string& file);

 private:
  void Check(const PlateInput& plate, const std::string& file);

  const RuleTables& tables_;
  PlateVocabulary vocabulary_;
  Reporter& reporter_;
  PlateNames names_;
};

}  // namespace plateconfig
