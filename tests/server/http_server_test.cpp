#include "server/http_server.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "server_fixture.h"

namespace lad::server::test {
namespace {

constexpr char kTap51[] = R"({"type":"tap","target":"menu:51"})";

std::string errorOf(const httplib::Response& res) {
  auto body = Json::parse(res.body, nullptr, false);
  if (!body.is_object() || !body["error"].is_string()) return {};
  return body["error"];
}

TEST_F(ServerTest, ViewDescribesTheMainMenuAndKeepsTheSession) {
  auto c = client();
  auto first = c->Get("/api/view");
  ASSERT_TRUE(first);
  EXPECT_EQ(first->status, 200);
  EXPECT_EQ(first->get_header_value("Content-Type"), "application/json");
  EXPECT_EQ(first->get_header_value("Cache-Control"), "no-store");

  // The menu of the installation's own version, which the session's tests walk row by row.
  Json body = Json::parse(first->body);
  EXPECT_EQ(body["view"]["children"].back()["rows"].back().value("comment", ""), "Версия 0.1.0");

  const std::string cookie = first->get_header_value("Set-Cookie");
  EXPECT_NE(cookie.find("HttpOnly"), std::string::npos) << cookie;
  EXPECT_NE(cookie.find("SameSite=Strict"), std::string::npos) << cookie;
  const std::string session = sessionFromSetCookie(*first);
  ASSERT_FALSE(session.empty()) << cookie;

  auto again = c->Get("/api/view", sessionHeaders(session));
  ASSERT_TRUE(again);
  EXPECT_FALSE(again->has_header("Set-Cookie"));
  EXPECT_EQ(Json::parse(again->body)["view"], body["view"]);

  // A session the server does not know is replaced by a new one.
  auto stale = c->Get("/api/view", sessionHeaders("no-such-session"));
  ASSERT_TRUE(stale);
  const std::string replacement = sessionFromSetCookie(*stale);
  EXPECT_TRUE(!replacement.empty() && replacement != "no-such-session") << replacement;
}

TEST_F(ServerTest, AnswersCarryTheOrderTheServerMadeThemIn) {
  // The browser puts answers that crossed on the way back in this order.
  const std::string session = openSession();
  std::vector<Json> answers;
  for (const auto& res :
       {client()->Get("/api/view", sessionHeaders(session)), tap(session, "menu:51"),
        client()->Get("/api/view", sessionHeaders(session))}) {
    ASSERT_TRUE(res);
    answers.push_back(Json::parse(res->body));
  }
  for (std::size_t i = 1; i < answers.size(); ++i) {
    EXPECT_EQ(answers[i]["run"], answers[0]["run"]);
    EXPECT_GT(answers[i]["seq"].get<std::int64_t>(), answers[i - 1]["seq"].get<std::int64_t>())
        << i;
  }
}

TEST_F(ServerTest, ServesStaticFilesAndRefusesUnknownPaths) {
  auto c = client();
  auto index = c->Get("/");
  ASSERT_TRUE(index);
  EXPECT_EQ(index->status, 200);
  EXPECT_EQ(index->get_header_value("X-Content-Type-Options"), "nosniff");

  auto nothing = c->Get("/api/nothing");
  ASSERT_TRUE(nothing);
  EXPECT_EQ(nothing->status, 404);
  EXPECT_NE(errorOf(*nothing).find("/api/nothing"), std::string::npos) << nothing->body;
}

TEST_F(ServerTest, RefusesBadEventsWithoutChangingAnything) {
  const std::string session = openSession();
  const std::string settingsBefore = settingsNow();
  auto viewBefore = client()->Get("/api/view", sessionHeaders(session));
  ASSERT_TRUE(viewBefore);

  struct Case {
    std::string body;
    std::string saysWhat;  // text that the error message contains
  };
  const std::vector<Case> cases = {
      {R"({"type":"tap",)", "not valid JSON"},
      {R"(["tap","menu:51"])", "JSON object"},
      {R"({"target":"menu:51"})", "\"type\""},
      {R"({"type":"swipe","target":"menu:51"})", "swipe"},
      {R"({"type":"tap"})", "\"target\""},
      {R"({"type":"tap","target":51})", "\"target\""},
      {R"({"type":"tap","target":"menu:9"})", "menu:9"},
      {R"({"type":"tap","target":"menu:999"})", "menu:999"},
      {R"({"type":"tap","target":"menu:51x"})", "menu:51x"},
      {R"({"type":"viewport","width":0,"height":844})", "positive"},
      {R"({"type":"viewport","width":1e9,"height":844})", "positive"},
      {R"({"type":"viewport","width":"390","height":844})", "numeric"},
      {R"({"type":"viewport","width":390})", "viewport"},
      {R"({"type":"shortcut"})", "SCHVATKI or NEWNOTE"},
      {R"({"type":"shortcut","name":"OPEN"})", "SCHVATKI or NEWNOTE"},
  };
  for (const Case& c : cases) {
    auto res = postEvent(c.body, session);
    ASSERT_TRUE(res) << c.body;
    EXPECT_EQ(res->status, 400) << c.body;
    const std::string error = errorOf(*res);
    EXPECT_NE(error.find(c.saysWhat), std::string::npos) << c.body << " -> " << res->body;
  }

  // A valid tap that arrives in the wrong way, or too large, must not be taken either.
  std::string padded = R"({"type":"tap","target":"menu:51","pad":")";
  padded.append(HttpOptions().maxBodyBytes, 'x');
  padded += "\"}";
  struct Wrapping {
    std::string body, contentType;
    httplib::Headers headers;
    int status;
  };
  const Wrapping wrappings[] = {
      {kTap51, "text/plain", {}, 415},
      {kTap51, "application/json-seq", {}, 415},
      {kTap51, "application/json", {{"Origin", "http://evil.example"}}, 403},
      {kTap51, "application/json", {{"Sec-Fetch-Site", "cross-site"}}, 403},
      {padded, "application/json", {}, 413},
  };
  for (const Wrapping& w : wrappings) {
    auto res = postEvent(w.body, session, w.headers, w.contentType);
    ASSERT_TRUE(res) << w.status;
    EXPECT_EQ(res->status, w.status) << w.contentType;
    EXPECT_FALSE(errorOf(*res).empty()) << res->body;
  }

  EXPECT_EQ(settingsNow(), settingsBefore);
  auto viewAfter = client()->Get("/api/view", sessionHeaders(session));
  ASSERT_TRUE(viewAfter);
  EXPECT_EQ(Json::parse(viewAfter->body)["view"], Json::parse(viewBefore->body)["view"]);
}

TEST_F(ServerTest, TapTogglesTheSwitchAndWritesTheSettings) {
  const std::string session = openSession();
  auto on =
      postEvent(kTap51, session, {{"Origin", ownOrigin()}, {"Sec-Fetch-Site", "same-origin"}});
  ASSERT_TRUE(on);
  ASSERT_EQ(on->status, 200) << on->body;
  EXPECT_EQ(rowOf(Json::parse(on->body), "menu:51")["checked"], true) << on->body;
  EXPECT_EQ(switchOnDisk(dataDir(), "emptyNote"), true);

  // The switch belongs to the installation, so another session sees it too.
  auto other = client()->Get("/api/view");
  ASSERT_TRUE(other);
  EXPECT_EQ(rowOf(Json::parse(other->body), "menu:51")["checked"], true);

  // The media type is case-insensitive and may carry parameters.
  auto off = postEvent(kTap51, session, {}, "Application/JSON; charset=utf-8");
  ASSERT_TRUE(off);
  ASSERT_EQ(off->status, 200) << off->body;
  EXPECT_EQ(rowOf(Json::parse(off->body), "menu:51")["checked"], false);
  EXPECT_EQ(switchOnDisk(dataDir(), "emptyNote"), false);
}

TEST_F(ServerTest, ManyClientsAtOnceAllGetCorrectAnswers) {
  const auto showRecBefore = rowOf(Json::parse(client()->Get("/api/view")->body), "menu:56");
  ASSERT_TRUE(showRecBefore["checked"].is_boolean());

  constexpr int kThreads = 8;
  constexpr int kRounds = 10;
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t)
    threads.emplace_back([this] {
      auto c = client();
      auto first = c->Get("/api/view");
      ASSERT_TRUE(first);
      const httplib::Headers headers = sessionHeaders(sessionFromSetCookie(*first));
      for (int round = 0; round < kRounds; ++round) {
        auto view = c->Get("/api/view", headers);  // the same session all along
        EXPECT_TRUE(view && view->status == 200 && !view->has_header("Set-Cookie"));
        EXPECT_EQ(statusOf(c->Post("/api/event", headers, R"({"type":"tap","target":"menu:56"})",
                                   "application/json")),
                  200);
      }
    });
  for (auto& t : threads) t.join();

  // An even number of toggles, each taken whole, leaves the switch where it was.
  static_assert(kThreads * kRounds % 2 == 0);
  EXPECT_EQ(switchOnDisk(dataDir(), "showRec"), showRecBefore["checked"].get<bool>());
}

TEST(HttpServerLifecycleTest, StopBeforeRunStillEndsRun) {
  TempDir root;
  Installation installation(greetedInstallation(root.path() / "data"));
  HttpOptions options;
  options.port = 0;
  options.logRequests = false;
  HttpServer server(installation, options);
  std::string error;
  const int port = server.bind(&error);
  ASSERT_GT(port, 0) << error;

  // A stop that comes between bind() and run(), such as a signal at start-up, must still count.
  server.stop();
  auto runEnded = std::async(std::launch::async, [&] { server.run(); });
  const bool returned = runEnded.wait_for(kDeadline) == std::future_status::ready;
  if (!returned) {
    // run() is serving now; once it has answered, a second stop() reaches it.
    newClient(port)->Get("/");
    server.stop();
  }
  runEnded.get();
  EXPECT_TRUE(returned) << "run() kept serving after an earlier stop()";
}

}  // namespace
}  // namespace lad::server::test
