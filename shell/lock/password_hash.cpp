#include "shell/lock/password_hash.h"

#include <sodium.h>

namespace lad::shell {

namespace {

bool ready() {
  static const bool ok = sodium_init() >= 0;
  return ok;
}

}  // namespace

std::optional<std::string> hashPassword(std::string_view code) {
  char out[crypto_pwhash_STRBYTES];
  if (!ready() ||
      crypto_pwhash_str(out, code.data(), code.size(), crypto_pwhash_OPSLIMIT_INTERACTIVE,
                        crypto_pwhash_MEMLIMIT_INTERACTIVE) != 0)
    return std::nullopt;
  return std::string(out);
}

bool isPasswordHash(std::string_view stored) {
  return stored.starts_with(crypto_pwhash_STRPREFIX);
}

bool passwordMatches(const std::string& stored, std::string_view code) {
  if (stored.empty()) return false;
  if (!isPasswordHash(stored)) return stored == code;
  if (!ready() || stored.size() >= crypto_pwhash_STRBYTES) return false;
  return crypto_pwhash_str_verify(stored.c_str(), code.data(), code.size()) == 0;
}

}  // namespace lad::shell
