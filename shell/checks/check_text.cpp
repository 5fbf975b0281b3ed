#include "shell/checks/check_text.h"

#include <charconv>

#include "cloud/cloud_writers.h"
#include "shell/week/reading.h"
#include "store/selections.h"

namespace lad::shell {

namespace {

// The layout row of a target "<id>:<kind>:<row>".
std::optional<std::size_t> rowIndex(std::string_view target, std::string_view id,
                                    std::string_view kind) {
  const std::string prefix = std::string(id) + ":" + std::string(kind) + ":";
  if (!target.starts_with(prefix)) return std::nullopt;
  const std::string_view number = target.substr(prefix.size());
  std::size_t index = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), index);
  if (error != std::errc() || end != number.data() + number.size()) return std::nullopt;
  return index;
}

}  // namespace

CheckText::CheckText(Application& app, CheckTextOptions options)
    : app_(app), options_(std::move(options)), text_(content::contextTools(app.context())) {
  text_.settings().lineDistance = options_.lineDistance;
  if (options_.start) text_.settings().startDate = *options_.start;
  text_.prepareFromFile(contentFolder(app.context()), options_.resource);
  loadTicks();
}

void CheckText::loadTicks() {
  if (options_.seltypeid < 1) return;
  text_.checks().setCheckData(loadCheckData(app_.store(), options_.seltypeid, options_.gid));
}

ContentView CheckText::view() const {
  const auto& layout = text_.layout();
  ContentView view =
      layoutView(options_.id, layout, std::vector<double>(layout.rows.size(), 1.0), true);
  if (options_.highlight > 0)
    view.highlight = highlightedGroup(layout, options_.highlight, options_.highlightJust);
  return view;
}

std::optional<CheckTap> CheckText::tap(std::string_view target) {
  const auto& rows = text_.layout().rows;
  const auto tick = rowIndex(target, options_.id, "tick");
  if (tick && *tick < rows.size() && rows[*tick].tick >= 0) return toggle(rows[*tick].tick);
  const auto link = rowIndex(target, options_.id, "link");
  if (!link || *link >= rows.size() || rows[*link].linkid == 0) return std::nullopt;
  CheckTap tap;
  tap.kind = CheckTap::Kind::Link;
  tap.linkid = rows[*link].linkid;
  return tap;
}

CheckTap CheckText::toggle(int box) {
  CheckTap tap;
  tap.ticked = text_.checks().toggle(box);
  tap.guid = text_.checks().items()[static_cast<std::size_t>(box)].guid;
  if (options_.seltypeid >= 1) {
    setCheckData(app_.store(), options_.seltypeid, tap.guid, tap.ticked, options_.gid);
    cloud::cloudTickChanged(app_.store(), tap.ticked, tap.guid, options_.seltypeid, options_.gid);
  }
  return tap;
}

std::string CheckText::hiddenText(const std::string& guid) const {
  return content::hiddenText(text_.layout(), guid);
}

}  // namespace lad::shell
