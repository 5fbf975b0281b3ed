// The text source of the translation table: UTF-8, one Russian text and its German and French
// translations a line, separated by tabs, under the header "rus<TAB>ger<TAB>fra". Lines that
// begin with "#" are comments and blank lines are skipped. A line break inside a text is
// written "|", which is also how the table keeps it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "resources/tools/source_error.h"

namespace lad::resgen {

struct TranslationRow {
  std::string rus;
  std::string ger;
  std::string fra;
};

struct TranslationSource {
  std::vector<TranslationRow> rows;
  std::optional<SourceError> error;  // set: the source is refused and rows are incomplete
};

// Refuses a missing header, a line without exactly three fields, an empty Russian text and a
// Russian text that an earlier line already has.
TranslationSource parseTranslationSource(std::string_view text);

}  // namespace lad::resgen
