#include "server/http_request.h"

#include <algorithm>
#include <cctype>

namespace lad::server {

namespace {

using Outcome = HeadParse::Outcome;

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kMaxMethod = 16;
constexpr std::size_t kMaxLengthDigits = 15;

char lower(char c) {
  return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

bool isTokenChar(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) ||
         std::string_view("!#$%&'*+-.^_`|~").find(c) != std::string_view::npos;
}

bool isToken(std::string_view s) {
  return !s.empty() && std::ranges::all_of(s, isTokenChar);
}

// Visible characters and spaces: no control character may hide in a header or the target.
bool isFieldText(std::string_view s) {
  return std::ranges::all_of(s,
                             [](char c) {
                               const auto u = static_cast<unsigned char>(c);
                               return u == '\t' || u >= 0x20;
                             }) &&
         s.find('\x7f') == std::string_view::npos;
}

std::string_view trimmed(std::string_view s) {
  while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
  while (!s.empty() && (s.back() == ' ' || s.back() == '\t')) s.remove_suffix(1);
  return s;
}

int hexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  c = lower(c);
  return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

// The target's path, percent-decoded; false for a bad escape or a decoded NUL.
bool decodePath(std::string_view target, std::string& path) {
  target = target.substr(0, target.find_first_of("?#"));
  path.clear();
  for (std::size_t i = 0; i < target.size(); ++i) {
    if (target[i] != '%') {
      path += target[i];
      continue;
    }
    const int hi = i + 2 < target.size() ? hexValue(target[i + 1]) : -1;
    const int lo = hi >= 0 ? hexValue(target[i + 2]) : -1;
    if (lo < 0 || (hi == 0 && lo == 0)) return false;
    path += static_cast<char>(hi * 16 + lo);
    i += 2;
  }
  return true;
}

// This part of the head is fine; the parse goes on.
HeadParse accepted() {
  return {Outcome::Complete, 0, 0, {}};
}

HeadParse refused(int status, std::string error) {
  return {Outcome::Refused, 0, status, std::move(error)};
}

HeadParse parseRequestLine(std::string_view line, HttpRequest& request) {
  const std::size_t sp1 = line.find(' ');
  const std::size_t sp2 = sp1 == std::string_view::npos ? sp1 : line.find(' ', sp1 + 1);
  if (sp2 == std::string_view::npos) return refused(400, "the request line is not understood");
  const std::string_view method = line.substr(0, sp1);
  const std::string_view target = line.substr(sp1 + 1, sp2 - sp1 - 1);
  const std::string_view version = line.substr(sp2 + 1);
  if (!isToken(method) || method.size() > kMaxMethod) return refused(400, "bad request method");
  if (!target.starts_with('/') || !isFieldText(target) || target.find(' ') != target.npos)
    return refused(400, "bad request target");
  if (!version.starts_with("HTTP/")) return refused(400, "not an HTTP request");
  if (version != "HTTP/1.1" && version != "HTTP/1.0")
    return refused(505, "only HTTP/1.0 and HTTP/1.1 are served");
  request.method = method;
  request.target = target;
  request.minorVersion = version.back() - '0';
  if (!decodePath(target, request.path)) return refused(400, "bad escape in the request path");
  return accepted();
}

HeadParse takeContentLength(std::string_view value, HttpRequest& request, bool& seen) {
  if (value.empty() || value.size() > kMaxLengthDigits ||
      !std::ranges::all_of(value, [](char c) { return c >= '0' && c <= '9'; }))
    return refused(400, "bad Content-Length");
  std::size_t length = 0;
  for (char c : value) length = length * 10 + static_cast<std::size_t>(c - '0');
  if (seen && length != request.contentLength) return refused(400, "conflicting Content-Length");
  seen = true;
  request.contentLength = length;
  return accepted();
}

HeadParse parseHeaderLine(std::string_view line, HttpRequest& request, bool& lengthSeen) {
  const std::size_t colon = line.find(':');
  if (colon == std::string_view::npos || !isToken(line.substr(0, colon)))
    return refused(400, "bad header line");
  const std::string_view name = line.substr(0, colon);
  const std::string_view value = trimmed(line.substr(colon + 1));
  if (!isFieldText(value)) return refused(400, "bad header value");
  if (sameHeaderName(name, "Transfer-Encoding"))
    return refused(411, "a request body must come with a Content-Length");
  if (sameHeaderName(name, "Content-Length")) {
    HeadParse length = takeContentLength(value, request, lengthSeen);
    if (length.outcome == Outcome::Refused) return length;
  }
  request.headers.emplace_back(name, value);
  return accepted();
}

}  // namespace

bool sameHeaderName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                            [](char x, char y) { return lower(x) == lower(y); });
}

std::string HttpRequest::header(std::string_view name) const {
  for (const auto& [n, v] : headers)
    if (sameHeaderName(n, name)) return v;
  return {};
}

bool HttpRequest::keepAlive() const {
  std::string connection = header("Connection");
  std::ranges::transform(connection, connection.begin(), lower);
  if (connection.find("close") != std::string::npos) return false;
  return minorVersion == 1 || connection.find("keep-alive") != std::string::npos;
}

std::string HttpRequest::cookie(std::string_view name) const {
  const std::string cookies = header("Cookie");
  std::size_t pos = 0;
  while (pos < cookies.size()) {
    const std::size_t end = std::min(cookies.find(';', pos), cookies.size());
    const std::string_view part = trimmed(std::string_view(cookies).substr(pos, end - pos));
    if (part.size() > name.size() && part.starts_with(name) && part[name.size()] == '=')
      return std::string(part.substr(name.size() + 1));
    pos = end + 1;
  }
  return {};
}

HeadParse parseRequestHead(std::string_view bytes, HttpRequest& request) {
  const std::size_t end = bytes.substr(0, kMaxHeadBytes).find("\r\n\r\n");
  if (end == std::string_view::npos)
    return bytes.size() >= kMaxHeadBytes ? refused(431, "the request head is too large")
                                         : HeadParse{};
  request = HttpRequest();
  const std::string_view head = bytes.substr(0, end + kLineEnd.size());
  std::size_t lineEnd = head.find(kLineEnd);
  HeadParse result = parseRequestLine(head.substr(0, lineEnd), request);
  bool lengthSeen = false;
  for (std::size_t at = lineEnd + kLineEnd.size();
       result.outcome == Outcome::Complete && at < head.size(); at = lineEnd + kLineEnd.size()) {
    lineEnd = head.find(kLineEnd, at);
    result = parseHeaderLine(head.substr(at, lineEnd - at), request, lengthSeen);
  }
  if (result.outcome == Outcome::Complete) result.headBytes = end + 2 * kLineEnd.size();
  return result;
}

}  // namespace lad::server
