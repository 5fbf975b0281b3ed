// One running installation behind the HTTP server: its context and browser sessions live on the
// main loop; HTTP handler threads reach them only through the calls below.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "core/context.h"
#include "server/cloud_follower.h"
#include "server/event_hub.h"
#include "server/main_loop.h"
#include "shell/application.h"
#include "shell/session.h"

namespace lad::server {

struct Reply {
  int status = 200;
  std::string body;     // JSON
  std::string session;  // the session the request ran in
  bool newSession = false;

  // Turns the reply into a refusal: the status and {"error": message}.
  void refuse(int refusalStatus, const std::string& message);
};

// A file the server may send, or why not.
struct FileReply {
  int status = 200;
  std::filesystem::path file;  // set with status 200
  std::string error;
};

class Installation {
 public:
  // Opens the installation and runs its launch on the main loop.
  explicit Installation(ContextOptions options);
  ~Installation();

  // `host` is the host (and port) the browser named: the fingerprint keys are bound to it.
  Reply view(const std::string& session, const std::string& host = "");
  Reply event(const std::string& session, std::string_view body, const std::string& host = "");
  // A profile's portrait for a browser session: 403 to a session that is unknown or locked,
  // 400 for a guid that is not an identifier, 404 when the profile has no portrait.
  FileReply portrait(const std::string& session, const std::string& guid);
  // A picture of a diary day ("dd-MM-yyyy.jpg", its "-s.jpg" small copy, or either with a
  // child's guid before the date), under the same rule; 400 for any other name.
  FileReply dayPicture(const std::string& session, const std::string& name);
  // The reminders of the days to come as an iCalendar feed, for the name ("TOKEN.ics") of the
  // present feed address only; nullopt for any other name.
  std::optional<std::string> calendarFeed(std::string_view name);
  // The report the session asked for, once it is made; 404 before and for any other name.
  FileReply report(const std::string& session, const std::string& name);
  // A picture of the photo book on screen (a page's small copies, a photo of a picture page),
  // under the same rule; 404 for a name the book does not have.
  FileReply bookPicture(const std::string& session, const std::string& name);
  // Syncs through the folder from now on, as if it had been chosen on the cloud screen.
  void followCloudFolder(const std::filesystem::path& folder);
  // Where the reports find their pictures.
  void setImagesDir(const std::filesystem::path& dir);
  // The lock is on with a code: only then may other machines be served.
  bool passwordSet();
  // The edition's web app manifest (JSON).
  std::string manifest();

  // A new event stream of a session this installation knows; nullptr for any other.
  std::shared_ptr<Subscriber> openStream(const std::string& session, std::function<void()> wake);
  EventHub& hub() { return hub_; }
  // Ends every event stream, runs what is queued, and writes the settings. Idempotent.
  void shutdown();

  // Runs f with the context on the main loop (for tools and tests).
  template <class F>
  auto withContext(F f) {
    return loop_.call([&] { return f(app_->context()); });
  }

 private:
  struct SessionEntry {
    std::unique_ptr<shell::Session> session;
    std::uint64_t lastUse = 0;
  };
  FileReply privateFile(const std::string& session, const std::function<FileReply()>& find);
  // Main loop only.
  shell::Session& sessionFor(const std::string& id, const std::string& host, Reply& reply);
  void evictOldestSession();
  void afterEvent(const shell::EventResult& result, const std::string& origin);
  // Redraws every unlocked browser, and the one whose event or timer asked for it: a locked
  // browser hears of nothing but its own lock.
  void refresh(const std::string& origin);
  // A session this installation knows whose lock is open. Main loop only.
  bool unlocked(const std::string& session) const;
  // Shows the reminders whose minute has come in every browser, and tells the unlocked ones,
  // which may show them as system notifications while hidden.
  void deliverReminders();
  // What a pass of the cloud folder changed reaches the browsers.
  void afterCloudPass(const cloud::PassOutcome& outcome, bool percentChanged);

  MainLoop loop_;
  EventHub hub_;
  std::unique_ptr<shell::Application> app_;
  std::unordered_map<std::string, SessionEntry> sessions_;
  std::unique_ptr<CloudFollower> cloud_;  // goes first: its watcher posts to the loop
  std::uint64_t useCounter_ = 0;          // counts the requests, which the main loop takes in turn
  const std::string run_;                 // names this run of the server in its answers
  bool shutDown_ = false;
};

}  // namespace lad::server
