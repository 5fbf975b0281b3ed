// Text responses travel gzip-compressed to browsers that accept it; the event stream never
// does.
#include <gtest/gtest.h>
#include <zlib.h>

#include <string>

#include "server_fixture.h"

namespace lad::server::test {
namespace {

// The bytes of a gzip file of up to a megabyte, or "<not gzip>".
std::string gunzip(const std::string& packed) {
  std::string out(1 << 20, '\0');
  z_stream z{};
  z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
  z.avail_in = static_cast<uInt>(packed.size());
  z.next_out = reinterpret_cast<Bytef*>(out.data());
  z.avail_out = static_cast<uInt>(out.size());
  const bool whole =
      inflateInit2(&z, 16 + MAX_WBITS) == Z_OK && inflate(&z, Z_FINISH) == Z_STREAM_END;
  out.resize(z.total_out);
  inflateEnd(&z);
  return whole ? out : "<not gzip>";
}

class CompressionTest : public ServerTest {
 protected:
  void SetUp() override {
    ServerTest::SetUp();
    std::string script;
    for (int i = 0; i < 200; ++i) script += "render(view, " + std::to_string(i) + ");\n";
    script_ = script;
    writeFile(webDir() / "big.js", script_);
  }

  std::optional<RawResponse> get(const std::string& path, const std::string& extra = "") {
    LoopbackClient raw(port_);
    return raw.exchange("GET " + path + " HTTP/1.1\r\nHost: 127.0.0.1\r\n" + extra + "\r\n");
  }

  std::string script_;
};

constexpr char kGzip[] = "Accept-Encoding: gzip, deflate, br\r\n";

TEST_F(CompressionTest, TextIsCompressedForBrowsersThatAcceptItButNeverTheEventStream) {
  auto packed = get("/big.js", kGzip);
  ASSERT_TRUE(packed);
  EXPECT_EQ(packed->header("Content-Encoding"), "gzip");
  EXPECT_EQ(packed->header("Vary"), "Accept-Encoding");
  EXPECT_LT(packed->body.size(), script_.size() / 2);
  EXPECT_EQ(gunzip(packed->body), script_);

  auto plain = get("/big.js");
  ASSERT_TRUE(plain);
  EXPECT_EQ(plain->header("Content-Encoding"), "");
  // A browser that refuses gzip by quality gets it plain as well.
  EXPECT_EQ(get("/big.js", "Accept-Encoding: gzip;q=0\r\n")->header("Content-Encoding"), "");

  // The view made for each request is text as well.
  auto view = get("/api/view", kGzip);
  ASSERT_TRUE(view);
  EXPECT_TRUE(gunzip(view->body).starts_with("{\"view\"")) << view->head;

  // The event stream is never compressed: it would be held back until a block fills.
  StreamReader stream(port_, openSession(), kGzip);
  ASSERT_TRUE(stream.waitFor("retry:")) << stream.text();
  EXPECT_EQ(stream.text().find("Content-Encoding"), std::string::npos) << stream.text();
}

}  // namespace
}  // namespace lad::server::test
