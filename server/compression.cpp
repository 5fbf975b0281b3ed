#include "server/compression.h"

#include <zlib.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace lad::server {

namespace {

// Below this a compressed body is hardly smaller, and may be larger.
constexpr std::size_t kMinCompressBytes = 256;
constexpr int kGzipWindowBits = 15 + 16;  // the deflate window, wrapped as gzip
constexpr int kMemoryLevel = 8;

std::string lowered(std::string_view s) {
  std::string out(s);
  std::ranges::transform(out, out.begin(), [](char c) {
    return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  });
  return out;
}

std::string_view trimmed(std::string_view s) {
  while (!s.empty() && s.front() == ' ') s.remove_prefix(1);
  while (!s.empty() && s.back() == ' ') s.remove_suffix(1);
  return s;
}

// The quality of one entry of Accept-Encoding, such as "gzip;q=0.5": 1 without a q.
double qualityOf(std::string_view parameters) {
  const std::size_t q = parameters.find("q=");
  return q == std::string_view::npos ? 1.0
                                     : std::atof(std::string(parameters.substr(q + 2)).c_str());
}

}  // namespace

bool acceptsGzip(std::string_view acceptEncoding) {
  const std::string header = lowered(acceptEncoding);
  std::string_view rest = header;
  while (!rest.empty()) {
    const std::size_t comma = std::min(rest.find(','), rest.size());
    const std::string_view entry = rest.substr(0, comma);
    rest.remove_prefix(std::min(comma + 1, rest.size()));
    const std::size_t semicolon = std::min(entry.find(';'), entry.size());
    const std::string_view coding = trimmed(entry.substr(0, semicolon));
    if ((coding == "gzip" || coding == "*") && qualityOf(entry.substr(semicolon)) > 0) return true;
  }
  return false;
}

bool isCompressible(std::string_view contentType) {
  const std::string type = lowered(trimmed(contentType.substr(0, contentType.find(';'))));
  return type.starts_with("text/") || type == "application/json" ||
         type == "application/manifest+json" || type == "application/javascript" ||
         type == "image/svg+xml";
}

std::optional<std::string> gzip(std::string_view bytes) {
  z_stream z{};
  if (deflateInit2(&z, Z_DEFAULT_COMPRESSION, Z_DEFLATED, kGzipWindowBits, kMemoryLevel,
                   Z_DEFAULT_STRATEGY) != Z_OK)
    return std::nullopt;
  std::string out(deflateBound(&z, static_cast<uLong>(bytes.size())), '\0');
  z.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
  z.avail_in = static_cast<uInt>(bytes.size());
  z.next_out = reinterpret_cast<Bytef*>(out.data());
  z.avail_out = static_cast<uInt>(out.size());
  const int status = deflate(&z, Z_FINISH);
  out.resize(z.total_out);
  deflateEnd(&z);
  if (status != Z_STREAM_END) return std::nullopt;
  return out;
}

void compressForRequest(const HttpRequest& request, HttpResponse& response) {
  if (response.stream || !isCompressible(response.header("Content-Type"))) return;
  response.setHeader("Vary", "Accept-Encoding");
  if (response.body.size() < kMinCompressBytes || !acceptsGzip(request.header("Accept-Encoding")))
    return;
  if (auto packed = gzip(response.body)) {
    response.body = std::move(*packed);
    response.setHeader("Content-Encoding", "gzip");
  }
}

}  // namespace lad::server
