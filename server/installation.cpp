#include "server/installation.h"

#include <cstdio>

#include "core/ids.h"
#include "server/calendar_feed.h"
#include "shell/app_manifest.h"
#include "shell/lock/password_lock.h"
#include "shell/reminder_feed.h"
#include "store/day_photo.h"
#include "store/folders.h"
#include "store/portrait.h"

namespace lad::server {

namespace {

constexpr std::size_t kMaxSessions = 256;

// The view with its place among the answers the main loop made: "seq" grows with every request
// of this run of the server and "run" names the run, so that a browser whose requests were
// answered out of order shows the newest state.
std::string viewBody(shell::Session& s, const std::string& run, std::uint64_t seq) {
  Map m;
  m.set("view", s.view());
  m.set("run", run);
  m.set("seq", static_cast<std::int64_t>(seq));
  return Value(std::move(m)).toJson();
}

const PushMessage kRefresh{"refresh", "{}"};
// Reminders are looked for this often: each comes within its minute.
constexpr auto kReminderCheck = std::chrono::seconds(1);

PushMessage reminderMessage(const Context& context, const health::PlannedReminder& reminder) {
  Map m;
  m.set("caption", context.translate("Напоминание"));
  m.set("text", reminder.body);
  m.set("day", context.dates().dateToString(reminder.day, "dd.MM.yyyy"));
  return {"reminder", Value(std::move(m)).toJson()};
}

}  // namespace

void Reply::refuse(int refusalStatus, const std::string& message) {
  Map m;
  m.set("error", message);
  status = refusalStatus;
  body = Value(std::move(m)).toJson();
}

Installation::Installation(ContextOptions options) : run_(newID()) {
  loop_.call([&] {
    app_ = std::make_unique<shell::Application>(std::move(options));
    const std::string& problem = app_->context().settings().loadProblem();
    if (!problem.empty()) std::fprintf(stderr, "%s\n", problem.c_str());
  });
  loop_.addTimer(
      kReminderCheck, [this] { deliverReminders(); }, true);
  loop_.call([this] {
    cloud_ = std::make_unique<CloudFollower>(
        loop_, *app_,
        [this](const cloud::PassOutcome& o, bool percent) { afterCloudPass(o, percent); });
    cloud_->poll();
  });
  loop_.addTimer(
      CloudFollower::kPollInterval, [this] { cloud_->poll(); }, true);
}

Installation::~Installation() {
  shutdown();
}

void Installation::shutdown() {
  if (shutDown_) return;
  shutDown_ = true;
  hub_.close();
  loop_.post([this] {
    std::string error;
    if (!app_->context().settings().synchronize(&error))
      std::fprintf(stderr, "settings not written: %s\n", error.c_str());
  });
  loop_.stop();
}

shell::Session& Installation::sessionFor(const std::string& id, const std::string& host,
                                         Reply& reply) {
  auto it = sessions_.find(id);
  if (it == sessions_.end()) {
    if (sessions_.size() >= kMaxSessions) evictOldestSession();
    it = sessions_.emplace(newID(), SessionEntry{std::make_unique<shell::Session>(*app_)}).first;
    reply.newSession = true;
  }
  it->second.lastUse = ++useCounter_;
  reply.session = it->first;
  it->second.session->fingerprint().setHost(host);
  return *it->second.session;
}

void Installation::evictOldestSession() {
  auto oldest = sessions_.begin();
  for (auto it = sessions_.begin(); it != sessions_.end(); ++it)
    if (it->second.lastUse < oldest->second.lastUse) oldest = it;
  hub_.closeSession(oldest->first);
  sessions_.erase(oldest);
}

Reply Installation::view(const std::string& session, const std::string& host) {
  return loop_.call([&] {
    Reply reply;
    shell::Session& s = sessionFor(session, host, reply);
    reply.body = viewBody(s, run_, useCounter_);
    return reply;
  });
}

Reply Installation::event(const std::string& session, std::string_view body,
                          const std::string& host) {
  std::string parseError;
  auto parsed = Value::fromJson(body, &parseError);
  return loop_.call([&] {
    Reply reply;
    shell::Session& s = sessionFor(session, host, reply);
    const shell::EventResult result =
        parsed ? s.handle(*parsed)
               : shell::EventResult::refused("the event is not valid JSON: " + parseError);
    if (!result.ok()) {
      reply.refuse(400, result.error);
      return reply;
    }
    afterEvent(result, reply.session);
    reply.body = viewBody(s, run_, useCounter_);
    return reply;
  });
}

// A file of the diary, shown only to a session that is open and unlocked.
FileReply Installation::privateFile(const std::string& session,
                                    const std::function<FileReply()>& find) {
  return loop_.call([&]() -> FileReply {
    if (!unlocked(session))
      return {403, {}, "the diary's pictures are shown only to an unlocked session"};
    FileReply reply = find();
    if (reply.status == 200 && !std::filesystem::is_regular_file(reply.file))
      return {404, {}, "no such picture"};
    return reply;
  });
}

FileReply Installation::portrait(const std::string& session, const std::string& guid) {
  return privateFile(session, [&]() -> FileReply {
    if (!isID(guid)) return {400, {}, "not a profile identifier"};
    return {200, portraitFile(app_->context(), guid), {}};
  });
}

FileReply Installation::report(const std::string& session, const std::string& name) {
  return privateFile(session, [&]() -> FileReply {
    const auto entry = sessions_.find(session);
    const auto file = entry == sessions_.end()
                          ? std::nullopt
                          : entry->second.session->reports().finishedFile(name);
    if (!file) return {404, {}, "no report of that name is ready for this browser"};
    return {200, *file, {}};
  });
}

FileReply Installation::bookPicture(const std::string& session, const std::string& name) {
  return privateFile(session, [&]() -> FileReply {
    const auto book = app_->book();
    const auto file = book ? book->shownFile(name) : std::nullopt;
    if (!file) return {404, {}, "the book on screen has no picture of that name"};
    return {200, *file, {}};
  });
}

void Installation::followCloudFolder(const std::filesystem::path& folder) {
  loop_.call([&] {
    Context& context = app_->context();
    context.settings().set("cloudFolder", folder.string());
    context.values().cloudWatching = true;
    cloud::chooseCloudSync(context);
    cloud_->poll();
  });
}

void Installation::setImagesDir(const std::filesystem::path& dir) {
  loop_.call([&] { app_->setImagesDir(dir); });
}

FileReply Installation::dayPicture(const std::string& session, const std::string& name) {
  return privateFile(session, [&]() -> FileReply {
    if (!isDayPictureName(name)) return {400, {}, "not the name of a day's picture"};
    const std::filesystem::path documents = app_->context().documentsDir();
    return {200, typeFilePath(documents, name) / name, {}};
  });
}

// The whole of today stays in the feed, so that a reminder does not leave the calendar at its
// minute.
std::optional<std::string> Installation::calendarFeed(std::string_view name) {
  return loop_.call([&]() -> std::optional<std::string> {
    Context& context = app_->context();
    if (!shell::isFeedName(context.settings(), name)) return std::nullopt;
    const Date now = context.clock().now();
    const auto plan = health::planReminders(app_->store(), context.dates().noTime(now));
    return server::calendarFeed(plan, now, context.translate("Напоминания дневника"));
  });
}

bool Installation::passwordSet() {
  return loop_.call([&] { return shell::passwordOn(app_->context().settings()); });
}

std::string Installation::manifest() {
  return loop_.call([&] { return shell::webAppManifest(app_->context()).toJson(); });
}

std::shared_ptr<Subscriber> Installation::openStream(const std::string& session,
                                                     std::function<void()> wake) {
  return loop_.call([&]() -> std::shared_ptr<Subscriber> {
    if (!sessions_.contains(session)) return nullptr;
    return hub_.subscribe(session, std::move(wake));
  });
}

void Installation::afterEvent(const shell::EventResult& result, const std::string& origin) {
  if (result.installationChanged) refresh(origin);
  if (result.redrawAfter.count() > 0)
    loop_.addTimer(result.redrawAfter, [this, origin] { refresh(origin); });
  if (result.timer)
    loop_.addTimer(result.timerDelay, [this, origin, timer = result.timer] {
      afterEvent(timer(), origin);
      refresh(origin);
    });
}

void Installation::deliverReminders() {
  Context& context = app_->context();
  const auto due = app_->reminders().takeDue(app_->store(), context.clock().now(),
                                             app_->dataVersion(), context.values().pillsAlarm);
  for (const health::PlannedReminder& reminder : due) {
    // The log says when a reminder went out, next to the requests that follow it.
    std::fprintf(stderr, "reminder of %s shown in %zu browsers\n",
                 context.dates().dateToString(reminder.at, "dd.MM.yyyy HH:mm").c_str(),
                 sessions_.size());
    for (auto& [id, entry] : sessions_) entry.session->showReminder(reminder.body);
    // Its text goes only where the diary is open to read.
    hub_.publish(reminderMessage(context, reminder),
                 [this](const std::string& session) { return unlocked(session); });
  }
  if (!due.empty()) refresh("");
}

void Installation::afterCloudPass(const cloud::PassOutcome& outcome, bool percentChanged) {
  if (outcome.dataChanged) app_->dataChanged();
  for (const cloud::CloudNotice& notice : outcome.notices) {
    for (auto& [id, entry] : sessions_)
      entry.session->showMessage(
          shell::MessageBox::make(app_->context(), notice.text, notice.caption));
  }
  if (outcome.dataChanged || percentChanged || !outcome.notices.empty()) refresh("");
}

void Installation::refresh(const std::string& origin) {
  hub_.publish(kRefresh,
               [&](const std::string& session) { return session == origin || unlocked(session); });
}

bool Installation::unlocked(const std::string& session) const {
  const auto it = sessions_.find(session);
  return it != sessions_.end() && !it->second.session->locked();
}

}  // namespace lad::server
