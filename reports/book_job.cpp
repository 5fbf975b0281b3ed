#include "reports/book_job.h"

#include <fstream>

#include "core/context.h"
#include "core/edition.h"
#include "core/text_fill.h"
#include "health/weight_chart.h"
#include "reports/book_cover.h"
#include "reports/book_dictionary.h"
#include "reports/book_page_image.h"
#include "reports/book_pdf.h"
#include "reports/diary_pages.h"
#include "reports/report_days.h"
#include "store/day_regims.h"
#include "store/dictionary.h"
#include "store/store.h"

namespace lad::reports {

namespace {

constexpr const char* kGraphLabel = "График прибавки веса за весь период беременности (килограммы)";

// The book's grounds and cover pictures, rendered at build time from their sources.
std::filesystem::path bookPictures(const Context& context) {
  return context.resourcesDir() / "images";
}

// The regim of the book's days in each edition.
int bookRegim(DayEdition edition) {
  return edition == DayEdition::Woman ? 3 : 8;
}

// A finished page joins the book, and whoever follows it hears of it.
void keep(BookPage page, std::vector<BookPage>& pages, const BookOptions& options) {
  if (options.onPage) options.onPage(page);
  pages.push_back(std::move(page));
}

// The jacket (page 1) or the cover (page 2).
std::optional<BookPage> coverPage(const Context& context, const Map& dic, int number,
                                  const std::filesystem::path& folder, std::string* error) {
  const drawing::Size size = number == 1 ? kJacketPage : kCoverPage;
  const PageGround ground{static_cast<int>(dic["booktype"].intValue()), number, 0};
  BookPage page{number, false, {}, bookPageFile(folder, number)};
  const bool written = PageRaster(size).write(
      [&](drawing::Canvas& canvas) {
        paintBookGround(canvas, size, ground, bookPictures(context));
        drawBookCover(canvas, size, dic, context.values().appid, bookPictures(context));
      },
      page.file, error);
  if (!written) return std::nullopt;
  return page;
}

// The pages of the commands, page by page in order.
bool drawRecorded(const std::vector<BookCommand>& commands, const BookPageMaker& maker,
                  std::vector<BookPage>& pages, const BookOptions& options, std::string* error) {
  const std::size_t total = commands.empty() ? pages.size() : commands.back().page;
  for (std::size_t from = 0; from < commands.size();) {
    std::size_t to = from;
    while (to < commands.size() && commands[to].page == commands[from].page) ++to;
    std::string failure;
    auto page = maker.make(std::span(commands).subspan(from, to - from), &failure);
    if (!failure.empty()) {
      *error = failure;
      return false;
    }
    if (page) keep(std::move(*page), pages, options);
    if (options.progress) options.progress(commands[from].page, total);
    from = to;
  }
  return true;
}

// bookPageGraph and bookAddPage: the pregnancy's weight chart as a picture page at the end.
bool addGraphPage(Store& store, const std::string& gid, int number, const BookPageMaker& maker,
                  const PdfSettings& s, const BookOptions& options,
                  const std::filesystem::path& folder, std::vector<BookPage>& pages,
                  std::string* error) {
  const auto png =
      health::bookPageGraph(store, gid, bookSizeForType(12, s.ot), 1, options.imagesDir);
  if (!png) return true;
  const std::filesystem::path graph = folder / "graph.png";
  std::ofstream(graph, std::ios::binary | std::ios::trunc) << *png;
  BookPage page{number,
                true,
                {{{graph.string(), true}}, 12, store.context().translate(kGraphLabel)},
                bookPageFile(folder, number)};
  if (!maker.drawPicturePage(page, error)) return false;
  keep(std::move(page), pages, options);
  return true;
}

}  // namespace

std::filesystem::path bookFile(const Context& context) {
  return context.documentsDir() / "book.pdf";
}

std::filesystem::path bookFolder(const Context& context) {
  return context.tempDir() / "book";
}

std::string bookCreator(const Context& context) {
  const int appid = context.values().appid;
  const char* pattern = isChildEdition(appid)   ? "Крохомир (%@)"
                        : isCycleEdition(appid) ? "Луновея (%@)"
                                                : "Ладанея (%@)";
  return fillIn(pattern, {context.version()});
}

std::optional<std::vector<BookPage>> prepareBook(Store& store, const BookRequest& r,
                                                 const BookOptions& options, std::string* error) {
  if (!isBookKind(r.kind)) {
    *error = "a book's kind is a number from 1 to 5, not " + std::to_string(r.kind);
    return std::nullopt;
  }
  const Context& context = store.context();
  const std::filesystem::path folder = bookFolder(context);
  std::error_code failure;
  std::filesystem::create_directories(folder, failure);
  const Map dic = bookDictionary(store, r.gid, r.kind, r.year);
  std::vector<BookPage> pages;
  for (const int number : {1, 2}) {
    auto page = coverPage(context, dic, number, folder, error);
    if (!page) return std::nullopt;
    keep(std::move(*page), pages, options);
  }
  const List listData = loadConstList(store, 0, std::nullopt);
  const Date from = dic["dat1"].asDate().value_or(context.clock().now());
  const std::vector<ReportDay> days = loadReportDays(
      store, r.gid, bookRegim(dayEdition(context.values().appid)), r.year, from, listData);
  const PdfSettings settings = bookSettings(context, kInnerPage, r.kind);
  const RowPainter rows(context, settings, options.imagesDir, listData);
  BookRecorder recorder(settings, rows);
  DiaryPages(recorder, settings, rows).drawPages(days);
  const BookPageMaker maker(context, settings, rows, r.kind, bookPictures(context), folder);
  if (!drawRecorded(recorder.commands(), maker, pages, options, error)) return std::nullopt;
  // The numbers of pages left out stay unused, so that a page's file keeps its number.
  const std::vector<BookCommand>& commands = recorder.commands();
  const int next = commands.empty() ? kFirstInnerPage : commands.back().page + 1;
  if (isPregnancyEdition(context.values().appid) &&
      !addGraphPage(store, r.gid, next, maker, settings, options, folder, pages, error))
    return std::nullopt;
  return pages;
}

bool redrawPicturePage(Store& store, int kind, const BookOptions& options, BookPage& page,
                       std::string* error) {
  const Context& context = store.context();
  const PdfSettings settings = bookSettings(context, kInnerPage, kind);
  const RowPainter rows(context, settings, options.imagesDir,
                        loadConstList(store, 0, std::nullopt));
  const BookPageMaker maker(context, settings, rows, kind, bookPictures(context),
                            bookFolder(context));
  return maker.drawPicturePage(page, error);
}

bool makeBook(Store& store, const BookRequest& request, const BookOptions& options,
              std::string* error) {
  const auto pages = prepareBook(store, request, options, error);
  if (!pages) return false;
  std::vector<std::filesystem::path> files;
  for (const BookPage& page : *pages) files.push_back(page.file);
  return saveBook(files, request.target, bookCreator(store.context()), error);
}

}  // namespace lad::reports
