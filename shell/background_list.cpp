#include "shell/background_list.h"

#include <charconv>

#include "shell/theme.h"
#include "shell/views/pages.h"
#include "shell/views/rows.h"

namespace lad::shell {

namespace {

constexpr std::string_view kPrefix = "background:";

}  // namespace

std::string backgroundTarget(int backgroundId) {
  return std::string(kPrefix) + std::to_string(backgroundId);
}

void changeBackground(Context& context, int backgroundId) {
  context.settings().set("backgroundId", backgroundId);
  context.settings().synchronize();
  ProcessValues& values = context.values();
  values.backgroundId = backgroundId;
  correctBackground(values, backgroundId);
}

Value BackgroundList::view() {
  const ProcessValues& values = context_.values();
  List rows;
  for (int id = 1; id <= values.backgroundCount; ++id) {
    RowView row;
    row.id = backgroundTarget(id);
    row.icon = backgroundThumbnail(id);
    row.checked = id == values.backgroundId;
    rows.push_back(row.toValue());
  }
  return PageView{context_.translate("Фон программы"), {ListView{std::move(rows)}.toValue()}}
      .toValue();
}

EventResult BackgroundList::tap(std::string_view target) {
  int id = 0;
  const char* last = target.data() + target.size();
  if (!target.starts_with(kPrefix) ||
      std::from_chars(target.data() + kPrefix.size(), last, id).ptr != last || id < 1 ||
      id > context_.values().backgroundCount)
    return EventResult::refused("no such background: " + std::string(target));
  changeBackground(context_, id);
  closed_ = true;
  EventResult result;
  result.installationChanged = true;
  return result;
}

}  // namespace lad::shell
