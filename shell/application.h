// The installation as a running program: it launches once, greets once per version, and
// follows its browsers becoming visible (an activation) and hidden (a deactivation).
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "cloud/bulk_copy.h"
#include "core/context.h"
#include "health/breast_timer.h"
#include "health/contraction_timer.h"
#include "shell/book/book_project.h"
#include "shell/job_queue.h"
#include "shell/lock/lock_throttle.h"
#include "shell/message_box.h"
#include "shell/reminder_schedule.h"
#include "shell/report_maker.h"
#include "store/store.h"

namespace lad::shell {

// Which greeting the welcome screen gives.
enum class Greeting { NewInstallation, Update };

// What an activation asks of the browser that caused it.
struct Activation {
  bool lockDue = false;  // the password lock must cover the screen
};

class Application {
 public:
  // Opens the installation and runs its launch: shared values, translation, the live
  // database, identity and menu table.
  explicit Application(ContextOptions options);

  Context& context() { return *context_; }
  Store& store() { return *store_; }
  // Wrong codes count for the whole installation, so a new browser session does not start afresh.
  LockThrottle& lockThrottle() { return lockThrottle_; }

  // The version record, taken when the first screen appears: the greeting due for this
  // version, once, and afterwards nothing.
  std::optional<Greeting> takeVersionRecord();

  // A browser became visible: counts the activation (asking for a review at every tenth) and
  // tells whether the lock is due. Pages load again whenever they come up; the page in front
  // stays as it was, and so does what the user is in the middle of.
  Activation becomeActive();
  // A browser was hidden: the moment is kept for the lock's grace time.
  void resignActive();

  // The contraction being timed for a pregnancy. It lives as long as the program runs, shared
  // by every browser and outliving the pages that show it.
  health::ContractionTimer& contractionTimer(const std::string& pregguid) {
    return contractionTimers_[pregguid];
  }
  // The breast timer of a child's feeding, likewise kept while no page shows it.
  health::BreastTimer& breastTimer(const std::string& childguid) {
    return breastTimers_[childguid];
  }

  // Counts changes of the installation's data, so that a page built before one knows it must
  // load again.
  std::uint64_t dataVersion() const { return dataVersion_; }
  void dataChanged() { ++dataVersion_; }

  // The reminders planned from the diary, delivered by the host at their minute.
  ReminderSchedule& reminders() { return reminders_; }

  // The PDF reports, made one after another away from the main thread.
  ReportMaker& reports() { return *reports_; }
  // The photo book being composed, else null. There is one at a time: its pages share a folder.
  std::shared_ptr<BookProject> book() const { return book_; }
  // Blocks until the reports and book pages asked for so far are made; returns how many jobs
  // of theirs have run since the start.
  std::size_t waitForDocuments() { return documents_.waitUntilIdle(); }
  // A new book replaces the one composed before; its pages are drawn on the worker.
  void startBook(reports::BookRequest request);
  void endBook() { book_.reset(); }
  // The copy of the whole diary into the cloud folder while it runs, else null. It belongs to
  // the installation, so that it goes on when its screen is closed.
  cloud::BulkCopy* cloudCopy() { return cloudCopy_.get(); }
  cloud::BulkCopy& startCloudCopy();
  void endCloudCopy() { cloudCopy_.reset(); }

  // Where the charts and the reports find their pictures.
  const std::filesystem::path& imagesDir() const { return imagesDir_; }
  void setImagesDir(std::filesystem::path dir);

  // A file handed over by another program is kept for the analyses or the doctor's chat; the
  // message tells the user where to use it.
  MessageBox openURL(const std::filesystem::path& file);

  // Called at every tenth activation; asking for a review is the host's business.
  void onReviewRequest(std::function<void()> ask) { askReview_ = std::move(ask); }

 private:
  bool lockDue() const;

  std::unique_ptr<Context> context_;
  std::unique_ptr<Store> store_;
  bool versionRecordTaken_ = false;
  std::function<void()> askReview_;
  LockThrottle lockThrottle_;
  std::map<std::string, health::ContractionTimer> contractionTimers_;
  std::map<std::string, health::BreastTimer> breastTimers_;
  std::uint64_t dataVersion_ = 0;
  ReminderSchedule reminders_;
  std::unique_ptr<cloud::BulkCopy> cloudCopy_;
  std::unique_ptr<ReportMaker> reports_;
  std::shared_ptr<BookProject> book_;
  std::filesystem::path imagesDir_;
  JobQueue documents_;  // goes first: its jobs use the store, the reports and the book
};

}  // namespace lad::shell
