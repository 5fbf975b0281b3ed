// The photo book of a profile, made from start to end: the jacket and the cover, the days'
// text pages and picture pages, the weight chart of a pregnancy, and book.pdf of them all.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "reports/book_pages.h"

namespace lad {
class Context;
class Store;
}  // namespace lad

namespace lad::reports {

struct BookRequest {
  std::string gid;
  int kind = 1;  // 1 to 5
  int year = 0;  // the child's year of life from 1, or the woman's calendar year
  std::filesystem::path target;
};

struct BookOptions {
  std::filesystem::path imagesDir;  // the program's pictures: the rows' icons
  // Hears how many pages are done, and of how many (the total grows as the days are laid out).
  std::function<void(std::size_t done, std::size_t total)> progress;
  // Hears of each page as soon as its picture is written.
  std::function<void(const BookPage&)> onPage;
};

// The book's file in the documents folder.
std::filesystem::path bookFile(const Context& context);
// The folder where the pages are drawn before they are combined.
std::filesystem::path bookFolder(const Context& context);
// The PDF's creator: the edition's name with the program's version.
std::string bookCreator(const Context& context);

// prepareBook: draws every page of the book into the book's folder, in order.
std::optional<std::vector<BookPage>> prepareBook(Store& store, const BookRequest& request,
                                                 const BookOptions& options, std::string* error);

// rebuildImagePage: draws a picture page again as it is now (after an edit, or one added to
// the book) into its file, keeping the layout used. False with *error filled when it could not
// be written.
bool redrawPicturePage(Store& store, int kind, const BookOptions& options, BookPage& page,
                       std::string* error);

// Makes the pages and writes the book to the request's target. False with *error filled when
// it could not be made; an old file at the target is then left as it was.
bool makeBook(Store& store, const BookRequest& request, const BookOptions& options,
              std::string* error);

}  // namespace lad::reports
