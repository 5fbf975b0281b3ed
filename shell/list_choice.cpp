#include "shell/list_choice.h"

#include "core/text_parts.h"
#include "shell/views/popups.h"

namespace lad::shell {

namespace {

std::vector<std::string> translatedParts(const Context& context, std::string_view text) {
  std::vector<std::string> parts;
  if (text.empty()) return parts;
  for (auto part : splitOn(text, "<br>")) parts.push_back(context.translate(part));
  return parts;
}

// Tap targets numbered from first, one for each caption.
std::vector<PopupButtonView> targets(const std::vector<std::string>& captions, int first) {
  std::vector<PopupButtonView> out;
  for (const auto& caption : captions) out.push_back({popupTarget(first++), caption, "", false});
  return out;
}

}  // namespace

ListChoice::ListChoice(const Context& context, std::string_view entries, std::string_view buttons)
    : entries_(translatedParts(context, entries)), buttons_(translatedParts(context, buttons)) {}

Value ListChoice::view() const {
  return ListChoiceView{targets(entries_, 0), targets(buttons_, static_cast<int>(entries_.size()))}
      .toValue();
}

std::optional<PopupAnswer> ListChoice::answer(std::string_view target, const Value&) const {
  const int n = popupIndex(target);
  const int count = static_cast<int>(entries_.size());
  if (n < 0 || n >= count + static_cast<int>(buttons_.size())) return std::nullopt;
  return PopupAnswer{n, n < count ? entries_[n] : buttons_[n - count], Value()};
}

}  // namespace lad::shell
