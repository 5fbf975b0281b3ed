#include "shell/book/book_kinds.h"

#include <charconv>

#include "reports/book_style.h"
#include "reports/report_job.h"
#include "shell/book/book_screen.h"
#include "shell/views/pages.h"
#include "shell/views/rows.h"

namespace lad::shell {

namespace {

constexpr std::string_view kPrefix = "book:kind:";

}  // namespace

Value BookKinds::view() {
  List rows;
  for (int kind = 1; reports::isBookKind(kind); ++kind) {
    RowView row;
    row.id = std::string(kPrefix) + std::to_string(kind);
    row.icon = "book" + std::to_string(kind) + ".png";
    rows.push_back(row.toValue());
  }
  return PageView{app_.context().translate("Фотокнига"), {ListView{std::move(rows)}.toValue()}}
      .toValue();
}

// selectBook: the book of the chosen kind replaces the screen of kinds.
EventResult BookKinds::tap(std::string_view target) {
  int kind = 0;
  const char* last = target.data() + target.size();
  if (!target.starts_with(kPrefix) ||
      std::from_chars(target.data() + kPrefix.size(), last, kind).ptr != last ||
      !reports::isBookKind(kind))
    return EventResult::refused("no such book: " + std::string(target));
  reports::BookRequest request;
  request.gid = gid_;
  request.kind = kind;
  request.year = reports::defaultReportYear(app_.store(), gid_);
  app_.startBook(std::move(request));
  closed_ = true;
  host_.push(std::make_shared<BookScreen>(app_, host_));
  return followBook(app_);
}

}  // namespace lad::shell
