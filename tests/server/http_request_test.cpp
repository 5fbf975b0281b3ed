// The request head parser and the static files' view of request paths.
#include "server/http_request.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "server/static_files.h"
#include "tests/support/test_files.h"

namespace lad::server {
namespace {

using Outcome = HeadParse::Outcome;

TEST(HttpRequestTest, ReadsTheHeadOfAGoodRequest) {
  const std::string bytes =
      "POST /api/event?x=1 HTTP/1.1\r\nHost: h\r\ncookie: a=1; lsid=S1 ; b=2\r\n"
      "Content-Length: 2\r\nConnection: Close\r\n\r\n{}";
  HttpRequest request;
  const HeadParse head = parseRequestHead(bytes, request);
  ASSERT_EQ(head.outcome, Outcome::Complete) << head.error;
  EXPECT_EQ(head.headBytes, bytes.size() - 2);
  EXPECT_EQ(request.path, "/api/event");
  EXPECT_EQ(request.header("HOST"), "h");
  EXPECT_EQ(request.cookie("lsid"), "S1");
  EXPECT_EQ(request.cookie("ls"), "");
  EXPECT_FALSE(request.keepAlive());

  EXPECT_EQ(parseRequestHead("GET / HTTP/1.1\r\nHost: h\r\n", request).outcome,
            Outcome::Incomplete);
  ASSERT_EQ(parseRequestHead("GET /a%20b HTTP/1.0\r\n\r\n", request).outcome, Outcome::Complete);
  EXPECT_EQ(request.path, "/a b");
  EXPECT_FALSE(request.keepAlive());
}

TEST(HttpRequestTest, RefusesHeadsItCannotTrust) {
  struct Case {
    std::string head;
    int status;
  };
  const std::vector<Case> cases = {
      {"GET / HTTP/2.0\r\n\r\n", 505},
      {"GET / FTP/1.0\r\n\r\n", 400},
      {"GET http://x/ HTTP/1.1\r\n\r\n", 400},
      {"GET /%zz HTTP/1.1\r\n\r\n", 400},
      {"GET /%00 HTTP/1.1\r\n\r\n", 400},
      {"GET / HTTP/1.1\r\n folded: x\r\n\r\n", 400},
      {"GET / HTTP/1.1\r\nBad Name: x\r\n\r\n", 400},
      {"POST / HTTP/1.1\r\nContent-Length: -1\r\n\r\n", 400},
      {"POST / HTTP/1.1\r\nContent-Length: 3\r\nContent-Length: 4\r\n\r\n", 400},
      {"POST / HTTP/1.1\r\nTransfer-Encoding: chunked\r\n\r\n", 411},
      {"GET / HTTP/1.1\r\nX: " + std::string(kMaxHeadBytes, 'x'), 431},
  };
  for (const Case& c : cases) {
    HttpRequest request;
    const HeadParse head = parseRequestHead(c.head, request);
    EXPECT_EQ(head.outcome, Outcome::Refused) << c.head.substr(0, 60);
    EXPECT_EQ(head.status, c.status) << c.head.substr(0, 60);
    EXPECT_FALSE(head.error.empty());
  }
}

TEST(StaticFilesTest, ServesOnlyFilesInsideItsFolders) {
  lad::testing::TempDir root;
  lad::testing::writeFile(root.path() / "secret.txt", "secret");
  std::filesystem::create_directories(root.path() / "web" / "sub");
  lad::testing::writeFile(root.path() / "web" / "index.html", "<p>");
  lad::testing::writeFile(root.path() / "web" / "sub" / "a.css", "p{}");
  StaticFiles files;
  files.mount("/", root.path() / "web");

  ASSERT_TRUE(files.serve("/"));
  EXPECT_EQ(files.serve("/")->body, "<p>");
  EXPECT_TRUE(files.serve("/sub/a.css"));
  for (const char* path : {"/../secret.txt", "/sub/../../secret.txt", "/..", "/missing.js"})
    EXPECT_FALSE(files.serve(path)) << path;
}

}  // namespace
}  // namespace lad::server
