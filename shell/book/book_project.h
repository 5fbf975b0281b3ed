// The photo book being composed: its pages as the installation's worker draws them, and the
// user's changes to them until the book is saved as book.pdf. It belongs to the installation,
// not to a screen, so that every browser sees the same book and a redraw or a browser coming
// back to the foreground finds it as it was. Calls come from the main thread; the worker adds
// and replaces pages under the lock.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/value.h"
#include "reports/book_job.h"
#include "shell/job_queue.h"
#include "shell/report_maker.h"
#include "store/store.h"

namespace lad::shell {

// A page as the screen shows it; the revision grows each time its picture is drawn again.
struct ShownPage {
  reports::BookPage page;
  int revision = 0;
};

struct BookState {
  std::vector<ShownPage> pages;
  bool making = false;   // the pages are still being drawn the first time
  bool drawing = false;  // a page is being drawn again
  std::size_t done = 0, total = 0;
  std::string error;  // the making failed
};

class BookProject : public std::enable_shared_from_this<BookProject> {
 public:
  BookProject(Store& store, JobQueue& worker, std::filesystem::path imagesDir,
              reports::BookRequest request);

  const reports::BookRequest& request() const { return request_; }
  BookState state() const;

  // prepareBook on the worker: the pages arrive one by one.
  void start();
  // pageDelete: only a picture page goes; the files of the others keep their numbers.
  std::optional<std::string> deletePage(int number);
  // rebuildImagePage with the page's new photos, line and layout.
  std::optional<std::string> changePicturePage(int number, reports::PicturePage picture);
  // bookAddPage: a new picture page of one photo (its bytes, JPEG or PNG) at the end.
  std::optional<std::string> addPicturePage(const Bytes& photo);
  // saveBook on the worker, after whatever it is doing; the job tells when book.pdf is there.
  std::shared_ptr<const ReportJob> save();

  // A file the screen shows: "book5.jpg" (page 5), "book5-s.jpg" (its thumbnail) or
  // "photo5-2.jpg" (the third photo of page 5); nullopt for any other name.
  std::optional<std::filesystem::path> shownFile(std::string_view name) const;

 private:
  void make();
  void redraw(reports::BookPage page, bool added);
  std::optional<std::string> refuseWhileBusy() const;
  ShownPage* find(int number);
  const ShownPage* find(int number) const;

  Store& store_;
  JobQueue& worker_;
  reports::BookRequest request_;
  reports::BookOptions options_;
  mutable std::mutex mutex_;
  BookState state_;
  int nextNumber_ = 0;  // for an added page: numbers of deleted pages are not used again
};

}  // namespace lad::shell
