// The nodes of the photo book's screen: the pages as thumbnails, one page opened large, and the
// editor of a picture page.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"
#include "shell/views/pages.h"

namespace lad::shell {

// A page's thumbnail; a picture page also has its delete and edit buttons.
struct BookPageView {
  std::string id;  // opens it large
  std::string label;
  std::string picture;  // the thumbnail's address
  std::string deleteId, editId;

  Value toValue() const;
};

struct BookLargeView {
  std::string label;
  std::string picture;
  ButtonView close;

  Value toValue() const;
};

// A photo of the page being edited: its tick and, but for the first, the button that moves it
// one place earlier.
struct BookPhotoView {
  std::string id;
  std::string picture;
  bool use = true;
  std::string earlier;

  Value toValue() const;
};

// A layout offered for the photos ticked, as its picture.
struct BookLayoutView {
  std::string id;
  std::string icon;
  bool chosen = false;

  Value toValue() const;
};

struct BookEditView {
  std::string caption;
  std::vector<BookPhotoView> photos;
  std::string labelId;
  std::string label;
  std::string placeholder;
  std::string layoutsCaption;
  std::vector<BookLayoutView> layouts;
  ButtonView ok, cancel;

  Value toValue() const;
};

struct BookView {
  static constexpr std::string_view kKind = "book";
  std::string caption;
  std::string status;  // what is being done, or what went wrong
  bool busy = false;
  std::vector<BookPageView> pages;
  std::optional<BookLargeView> large;
  std::optional<BookEditView> edit;
  std::string addId;  // the input that takes a photo for a new page
  std::string addCaption;
  ButtonView save, close;

  Value toValue() const;
};

}  // namespace lad::shell
