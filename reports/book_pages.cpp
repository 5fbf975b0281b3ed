#include "reports/book_pages.h"

#include <algorithm>

#include "core/text_fill.h"
#include "reports/book_page_image.h"

namespace lad::reports {

namespace {

// The group a text page opens: the first whose week heading stands on it.
int openedGroup(std::span<const BookCommand> commands) {
  for (const BookCommand& c : commands)
    if (c.func == "pdfDrawDayCap" && c.needBig)
      return static_cast<int>(std::max<std::int64_t>(1, c.day["group"].intValue()));
  return 0;
}

}  // namespace

std::filesystem::path bookPageFile(const std::filesystem::path& folder, int page) {
  return folder / fillIn("book%d.jpg", page);
}

BookPageMaker::BookPageMaker(const Context& context, const PdfSettings& inner,
                             const RowPainter& rows, int kind, std::filesystem::path picturesDir,
                             std::filesystem::path folder)
    : s_(inner),
      rows_(rows),
      caps_(context, inner),
      kind_(kind),
      picturesDir_(std::move(picturesDir)),
      folder_(std::move(folder)),
      raster_(inner.page) {}

std::optional<BookPage> BookPageMaker::make(std::span<const BookCommand> commands,
                                            std::string* error) const {
  const auto images = std::find_if(commands.begin(), commands.end(), [](const BookCommand& c) {
    return c.func == "bookSaveImagePage";
  });
  if (images == commands.end()) return textPage(commands, error);
  BookPage page{images->page, true, {readableImages(images->images), 0, ""}, {}};
  if (page.picture.images.empty()) return std::nullopt;
  page.file = bookPageFile(folder_, page.page);
  if (!drawPicturePage(page, error)) return std::nullopt;
  return page;
}

bool BookPageMaker::drawPicturePage(BookPage& page, std::string* error) const {
  const PageGround ground{kind_, page.page, 0};
  return raster_.write(
      [&](drawing::Canvas& canvas) {
        paintBookGround(canvas, s_.page, ground, picturesDir_);
        page.picture.tp = buildImagePage(canvas, page.picture, s_.page, kind_, s_.ot);
      },
      page.file, error);
}

std::optional<BookPage> BookPageMaker::textPage(std::span<const BookCommand> commands,
                                                std::string* error) const {
  BookPage page{commands.front().page, false, {}, bookPageFile(folder_, commands.front().page)};
  const PageGround ground{kind_, page.page, openedGroup(commands)};
  const bool written = raster_.write(
      [&](drawing::Canvas& canvas) {
        paintBookGround(canvas, s_.page, ground, picturesDir_);
        for (const BookCommand& c : commands) {
          if (c.func == "pdfDrawDayCap")
            caps_.draw(canvas, c.top, c.day, c.needBig, c.needSmall);
          else if (c.func != "bookSavePage")
            rows_.drawRow(&canvas, c.top, c.row, c.date);
        }
      },
      page.file, error);
  if (!written) return std::nullopt;
  return page;
}

}  // namespace lad::reports
