// gzip for the text responses of browsers that accept it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "server/http_request.h"
#include "server/http_response.h"

namespace lad::server {

// The Accept-Encoding header names gzip (or "*") with a quality above zero.
bool acceptsGzip(std::string_view acceptEncoding);
// Text types: HTML, scripts, styles, JSON (manifests too), SVG. Images and fonts are
// compressed already; an event stream must not be held back by a compressor.
bool isCompressible(std::string_view contentType);
// The bytes as a gzip file; nullopt when zlib fails.
std::optional<std::string> gzip(std::string_view bytes);
// Compresses the response's body when its type is text and the request accepts gzip; marks
// every response whose type could be compressed with "Vary: Accept-Encoding".
void compressForRequest(const HttpRequest& request, HttpResponse& response);

}  // namespace lad::server
