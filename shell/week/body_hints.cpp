#include "shell/week/body_hints.h"

#include <fstream>
#include <sstream>

namespace lad::shell {

std::vector<HintView> bodyHints(const std::filesystem::path& file, int month,
                                const Translator& translator) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  const auto tree = Value::fromJson(text.str());
  std::vector<HintView> hints;
  if (!tree) return hints;
  const List* list = (*tree)[std::to_string(month)].asList();
  if (!list) return hints;
  for (const Value& hint : *list)
    hints.push_back({translator.translate(hint["name"].text()), hint["x"].doubleValue(),
                     hint["y"].doubleValue()});
  return hints;
}

}  // namespace lad::shell
