// Text responses travel gzip-compressed to browsers that accept it; images and the event
// stream never do.
#include <gtest/gtest.h>
#include <zlib.h>

#include <string>

#include "server_fixture.h"
#include "tests/support/loopback_client.h"

namespace lad::server::test {
namespace {

using lad::testing::LoopbackClient;
using lad::testing::RawResponse;

std::string gunzip(const std::string& packed) {
  z_stream z{};
  if (inflateInit2(&z, 16 + MAX_WBITS) != Z_OK) return {};
  z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
  z.avail_in = static_cast<uInt>(packed.size());
  std::string out;
  char buffer[16384];
  int status = Z_OK;
  while (status == Z_OK) {
    z.next_out = reinterpret_cast<Bytef*>(buffer);
    z.avail_out = sizeof buffer;
    status = inflate(&z, Z_NO_FLUSH);
    out.append(buffer, sizeof buffer - z.avail_out);
  }
  inflateEnd(&z);
  return status == Z_STREAM_END ? out : std::string("<not gzip>");
}

class CompressionTest : public ServerTest {
 protected:
  void SetUp() override {
    ServerTest::SetUp();
    std::string script;
    for (int i = 0; i < 200; ++i) script += "render(view, " + std::to_string(i) + ");\n";
    script_ = script;
    writeFile(webDir() / "big.js", script_);
    writeFile(webDir() / "style.css", "body { margin: 0; }\n" + std::string(2000, ' '));
    writeFile(webDir() / "icon.svg",
              "<svg xmlns='http://www.w3.org/2000/svg'>" + std::string(2000, ' ') + "</svg>");
    writeFile(webDir() / "icon.png", "\x89PNG\r\n" + std::string(4000, 'p'));
  }

  std::optional<RawResponse> get(const std::string& path, const std::string& extra = "") {
    LoopbackClient raw(port_);
    return raw.exchange("GET " + path + " HTTP/1.1\r\nHost: 127.0.0.1\r\n" + extra + "\r\n");
  }

  std::string script_;
};

constexpr char kGzip[] = "Accept-Encoding: gzip, deflate, br\r\n";

TEST_F(CompressionTest, TextIsCompressedForBrowsersThatAcceptIt) {
  auto packed = get("/big.js", kGzip);
  ASSERT_TRUE(packed);
  EXPECT_EQ(packed->status, 200);
  EXPECT_EQ(packed->header("Content-Encoding"), "gzip");
  EXPECT_EQ(packed->header("Vary"), "Accept-Encoding");
  EXPECT_LT(packed->body.size(), script_.size() / 2);
  EXPECT_EQ(gunzip(packed->body), script_);

  auto plain = get("/big.js");
  ASSERT_TRUE(plain);
  EXPECT_EQ(plain->header("Content-Encoding"), "");
  EXPECT_EQ(plain->header("Vary"), "Accept-Encoding");
  EXPECT_EQ(plain->body, script_);
  // A browser that refuses gzip by quality gets it plain as well.
  EXPECT_EQ(get("/big.js", "Accept-Encoding: gzip;q=0\r\n")->header("Content-Encoding"), "");

  for (const char* path : {"/style.css", "/icon.svg", "/api/view", "/manifest.webmanifest"}) {
    auto res = get(path, kGzip);
    ASSERT_TRUE(res) << path;
    EXPECT_EQ(res->status, 200) << path;
    EXPECT_EQ(res->header("Content-Encoding"), "gzip") << path;
    EXPECT_FALSE(gunzip(res->body).empty()) << path;
  }
  auto view = get("/api/view", kGzip);
  EXPECT_EQ(Json::parse(gunzip(view->body))["view"]["kind"], "page");
}

TEST_F(CompressionTest, ImagesAndTheEventStreamAreNeverCompressed) {
  auto image = get("/icon.png", kGzip);
  ASSERT_TRUE(image);
  EXPECT_EQ(image->status, 200);
  EXPECT_EQ(image->header("Content-Type"), "image/png");
  EXPECT_EQ(image->header("Content-Encoding"), "");
  EXPECT_EQ(image->body, "\x89PNG\r\n" + std::string(4000, 'p'));

  LoopbackClient raw(port_);
  ASSERT_TRUE(raw.send("GET /api/events HTTP/1.1\r\nHost: 127.0.0.1\r\nCookie: lsid=" +
                       openSession() + "\r\n" + kGzip + "\r\n"));
  std::string head = raw.receiveOnce();
  while (head.find("retry:") == std::string::npos) {
    const std::string more = raw.receiveOnce();
    ASSERT_FALSE(more.empty()) << head;
    head += more;
  }
  EXPECT_EQ(head.find("Content-Encoding"), std::string::npos) << head;
  EXPECT_NE(head.find("text/event-stream"), std::string::npos) << head;
}

}  // namespace
}  // namespace lad::server::test
