// The photo book on screen: its pages as thumbnails while they are drawn, a page opened large,
// picture pages deleted, edited (which photos, in which order, their line and layout) or added
// from a photo, and at the end book.pdf saved and offered for download. The book is the
// installation's; the screen keeps only what this browser looks at and the edit under way.
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "reports/book_picture_page.h"
#include "shell/application.h"
#include "shell/screen.h"
#include "shell/screen_host.h"
#include "shell/views/book.h"

namespace lad::shell {

// Where a browser fetches the pictures of the book on screen: this, then BookProject's name.
inline constexpr std::string_view kBookAddress = "/doc/book/";

class BookScreen : public Screen {
 public:
  BookScreen(Application& app, ScreenHost& host) : app_(app), host_(host) {}

  Value view() override;
  EventResult tap(std::string_view target) override;
  EventResult change(std::string_view target, const Value& value) override;
  // Saved, closed, or the book was ended by another browser.
  bool closed() const override { return closed_ || !app_.book(); }

 private:
  // The picture page being edited and its photos, line and layout as they stand.
  struct Draft {
    int page = 0;
    reports::PicturePage picture;
  };

  EventResult tapPage(std::string_view action, int number);
  EventResult tapDraft(std::string_view action, int index);
  EventResult finishEdit();
  EventResult save();
  EventResult followBook() const;
  BookEditView editView(const Draft& draft, const BookState& state) const;

  Application& app_;
  ScreenHost& host_;
  std::optional<int> large_;  // the page opened large
  std::optional<Draft> draft_;
  bool closed_ = false;
};

// Every browser redraws while the book's pages are drawn, and once more when they are done.
EventResult followBook(Application& app);

}  // namespace lad::shell
