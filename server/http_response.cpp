#include "server/http_response.h"

#include <cstdio>

#include "core/value.h"
#include "server/http_request.h"

namespace lad::server {

namespace {

std::string statusLine(int status) {
  return "HTTP/1.1 " + std::to_string(status) + " " + std::string(reasonPhrase(status)) + "\r\n";
}

void appendHeaders(std::string& out, const HttpResponse& response) {
  for (const auto& [name, value] : response.headers) out += name + ": " + value + "\r\n";
}

}  // namespace

void HttpResponse::setHeader(std::string name, std::string value) {
  for (auto& [n, v] : headers)
    if (sameHeaderName(n, name)) {
      v = std::move(value);
      return;
    }
  headers.emplace_back(std::move(name), std::move(value));
}

std::string HttpResponse::header(std::string_view name) const {
  for (const auto& [n, v] : headers)
    if (sameHeaderName(n, name)) return v;
  return {};
}

void HttpResponse::setContent(std::string content, std::string contentType) {
  body = std::move(content);
  setHeader("Content-Type", std::move(contentType));
}

HttpResponse HttpResponse::error(int status, std::string_view message) {
  Map m;
  m.set("error", std::string(message));
  HttpResponse response;
  response.status = status;
  response.setHeader("Cache-Control", "no-store");
  response.setContent(Value(std::move(m)).toJson(), "application/json");
  return response;
}

std::string_view reasonPhrase(int status) {
  switch (status) {
    case 200:
      return "OK";
    case 304:
      return "Not Modified";
    case 400:
      return "Bad Request";
    case 401:
      return "Unauthorized";
    case 403:
      return "Forbidden";
    case 404:
      return "Not Found";
    case 405:
      return "Method Not Allowed";
    case 408:
      return "Request Timeout";
    case 411:
      return "Length Required";
    case 413:
      return "Content Too Large";
    case 415:
      return "Unsupported Media Type";
    case 431:
      return "Request Header Fields Too Large";
    case 500:
      return "Internal Server Error";
    case 503:
      return "Service Unavailable";
    case 505:
      return "HTTP Version Not Supported";
    default:
      return "Unknown";
  }
}

std::string serialize(const HttpResponse& response, bool keepAlive, bool headOnly) {
  std::string out = statusLine(response.status);
  out.reserve(out.size() + 512 + (headOnly ? 0 : response.body.size()));
  appendHeaders(out, response);
  out += "Content-Length: " + std::to_string(response.body.size()) + "\r\n";
  if (!keepAlive) out += "Connection: close\r\n";
  out += "\r\n";
  if (!headOnly) out += response.body;
  return out;
}

std::string serializeStreamHead(const HttpResponse& response) {
  std::string out = statusLine(response.status);
  appendHeaders(out, response);
  return out + "Transfer-Encoding: chunked\r\n\r\n";
}

std::string chunk(std::string_view text) {
  char size[24];
  std::snprintf(size, sizeof size, "%zx\r\n", text.size());
  return size + std::string(text) + "\r\n";
}

}  // namespace lad::server
