#include "shell/book/book_project.h"

#include <algorithm>
#include <charconv>

#include "core/atomic_file.h"
#include "platform/images.h"
#include "reports/book_pdf.h"
#include "shell/book/book_previews.h"

namespace lad::shell {

namespace {

constexpr int kUploadQuality = 92;

// The number that follows the prefix and ends right before the suffix.
std::optional<int> numberBetween(std::string_view text, std::string_view prefix,
                                 std::string_view suffix) {
  if (!text.starts_with(prefix) || !text.ends_with(suffix) ||
      text.size() <= prefix.size() + suffix.size())
    return std::nullopt;
  const std::string_view digits =
      text.substr(prefix.size(), text.size() - prefix.size() - suffix.size());
  int n = 0;
  const auto [end, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), n);
  if (ec != std::errc() || end != digits.data() + digits.size() || n < 0) return std::nullopt;
  return n;
}

// A photo of the diary has a small copy beside it, which is all the page's editor needs.
std::filesystem::path smallestCopy(const std::filesystem::path& photo) {
  std::filesystem::path small = photo.parent_path() / (photo.stem().string() + "-s.jpg");
  std::error_code failure;
  return std::filesystem::is_regular_file(small, failure) ? small : photo;
}

// The page of that number in `pages`, const or not as the list is; nullptr when none.
template <typename Pages>
auto* pageIn(Pages& pages, int number) {
  auto page =
      std::ranges::find_if(pages, [number](const ShownPage& p) { return p.page.page == number; });
  return page == pages.end() ? nullptr : &*page;
}

}  // namespace

BookProject::BookProject(Store& store, JobQueue& worker, std::filesystem::path imagesDir,
                         reports::BookRequest request)
    : store_(store), worker_(worker), request_(std::move(request)) {
  options_.imagesDir = std::move(imagesDir);
  request_.target = reports::bookFile(store.context());
}

BookState BookProject::state() const {
  std::lock_guard lock(mutex_);
  return state_;
}

void BookProject::start() {
  {
    std::lock_guard lock(mutex_);
    state_.making = true;
  }
  worker_.post([self = shared_from_this()] { self->make(); });
}

void BookProject::make() {
  reports::BookOptions options = options_;
  options.progress = [this](std::size_t done, std::size_t total) {
    std::lock_guard lock(mutex_);
    state_.done = done;
    state_.total = total;
  };
  options.onPage = [this](const reports::BookPage& page) {
    std::string failure;
    writePageThumbnail(page.file, &failure);  // without it the page shows no thumbnail
    std::lock_guard lock(mutex_);
    state_.pages.push_back({page, 0});
    nextNumber_ = std::max(nextNumber_, page.page + 1);
  };
  std::string error;
  const bool made = reports::prepareBook(store_, request_, options, &error).has_value();
  std::lock_guard lock(mutex_);
  state_.making = false;
  if (!made) state_.error = error;
}

std::optional<std::string> BookProject::refuseWhileBusy() const {
  if (state_.making || state_.drawing) return "the book's pages are being drawn";
  return std::nullopt;
}

ShownPage* BookProject::find(int number) {
  return pageIn(state_.pages, number);
}

const ShownPage* BookProject::find(int number) const {
  return pageIn(state_.pages, number);
}

std::optional<std::string> BookProject::deletePage(int number) {
  std::lock_guard lock(mutex_);
  if (auto busy = refuseWhileBusy()) return busy;
  const ShownPage* page = find(number);
  if (!page || !page->page.isimages) return "no picture page " + std::to_string(number);
  std::erase_if(state_.pages, [number](const ShownPage& p) { return p.page.page == number; });
  return std::nullopt;
}

std::optional<std::string> BookProject::changePicturePage(int number,
                                                          reports::PicturePage picture) {
  std::lock_guard lock(mutex_);
  if (auto busy = refuseWhileBusy()) return busy;
  const ShownPage* shown = find(number);
  if (!shown || !shown->page.isimages) return "no picture page " + std::to_string(number);
  reports::BookPage page = shown->page;
  page.picture = std::move(picture);
  state_.drawing = true;
  state_.error.clear();
  worker_.post([self = shared_from_this(), page] { self->redraw(page, false); });
  return std::nullopt;
}

std::optional<std::string> BookProject::addPicturePage(const Bytes& photo) {
  std::string why;
  const auto jpeg = platform::toJpeg(photo, kUploadQuality, &why);
  if (!jpeg) return "the photo cannot be read: " + why;
  std::lock_guard lock(mutex_);
  if (auto busy = refuseWhileBusy()) return busy;
  const std::filesystem::path folder = reports::bookFolder(store_.context());
  const int number = nextNumber_++;
  const std::filesystem::path file = folder / ("added-" + std::to_string(number) + ".jpg");
  if (!writeFileAtomically(
          file, std::string_view(reinterpret_cast<const char*>(jpeg->data()), jpeg->size()), &why))
    return "the photo cannot be kept: " + why;
  reports::BookPage page{
      number, true, {{{file.string(), true}}, 0, ""}, reports::bookPageFile(folder, number)};
  state_.drawing = true;
  state_.error.clear();
  worker_.post([self = shared_from_this(), page] { self->redraw(page, true); });
  return std::nullopt;
}

// A page that cannot be drawn keeps its old picture, or is not added.
void BookProject::redraw(reports::BookPage page, bool added) {
  std::string error;
  const bool drawn = reports::redrawPicturePage(store_, request_.kind, options_, page, &error) &&
                     writePageThumbnail(page.file, &error);
  std::lock_guard lock(mutex_);
  state_.drawing = false;
  if (!drawn) {
    state_.error = error;
    return;
  }
  if (added) {
    state_.pages.push_back({std::move(page), 0});
  } else if (ShownPage* shown = find(page.page)) {
    shown->page = std::move(page);
    ++shown->revision;
  }
}

std::shared_ptr<const ReportJob> BookProject::save() {
  auto job = std::make_shared<ReportJob>();
  job->document = ReportJob::Document::Book;
  job->request.target = request_.target;
  worker_.post([self = shared_from_this(), job] {
    job->state = ReportJob::State::Running;
    std::vector<std::filesystem::path> files;
    for (const ShownPage& shown : self->state().pages) files.push_back(shown.page.file);
    job->total = files.size();
    std::string error;
    const bool saved = reports::saveBook(files, self->request_.target,
                                         reports::bookCreator(self->store_.context()), &error);
    if (!saved) job->error = error;
    job->done = saved ? files.size() : 0;
    job->state = saved ? ReportJob::State::Done : ReportJob::State::Failed;
  });
  return job;
}

std::optional<std::filesystem::path> BookProject::shownFile(std::string_view name) const {
  std::lock_guard lock(mutex_);
  if (auto number = numberBetween(name, "book", "-s.jpg"))
    if (const ShownPage* page = find(*number)) return pageThumbnail(page->page.file);
  if (auto number = numberBetween(name, "book", ".jpg"))
    if (const ShownPage* page = find(*number)) return page->page.file;
  const std::size_t dash = name.find('-');
  if (dash == std::string_view::npos) return std::nullopt;
  const auto number = numberBetween(name.substr(0, dash), "photo", "");
  const auto index = numberBetween(name.substr(dash), "-", ".jpg");
  const ShownPage* page = number ? find(*number) : nullptr;
  if (!page || !index || static_cast<std::size_t>(*index) >= page->page.picture.images.size())
    return std::nullopt;
  return smallestCopy(page->page.picture.images[*index].image);
}

}  // namespace lad::shell
