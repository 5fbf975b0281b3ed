// An HTTP response as the handlers fill it in, and its bytes on the wire.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "server/event_hub.h"

namespace lad::server {

struct HttpResponse {
  int status = 200;
  std::vector<std::pair<std::string, std::string>> headers;
  std::string body;
  // Set: the response is this subscriber's event stream, sent chunked for as long as it lasts.
  std::shared_ptr<Subscriber> stream;

  void setHeader(std::string name, std::string value);
  // The first header of that name, or "".
  std::string header(std::string_view name) const;
  void setContent(std::string content, std::string contentType);
  // {"error": message} with the status, as every refusal of the server looks.
  static HttpResponse error(int status, std::string_view message);
};

std::string_view reasonPhrase(int status);

// Status line, headers and body in one piece, so that the whole response leaves in one write.
// Without a body when `headOnly` (HEAD); "Connection: close" when the connection ends after it.
std::string serialize(const HttpResponse& response, bool keepAlive, bool headOnly = false);
// The head of an event stream, its body sent chunked as the events come.
std::string serializeStreamHead(const HttpResponse& response);
// One chunk of a chunked body; the empty text gives the last chunk.
std::string chunk(std::string_view text);

}  // namespace lad::server
