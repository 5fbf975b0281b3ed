#include "tests/support/test_authenticator.h"

#include <openssl/core_names.h>
#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/rsa.h>

#include <stdexcept>

#include "core/base64.h"
#include "platform/cose_key.h"

namespace lad::testing {

namespace {

std::string head(int major, std::uint64_t n) {
  const auto m = static_cast<char>(major << 5);
  if (n < 24) return std::string(1, static_cast<char>(m | n));
  std::string out(1, static_cast<char>(m | 25));
  if (n > 0xffff) throw std::invalid_argument("test CBOR keeps to 16-bit sizes");
  out += static_cast<char>(n >> 8);
  out += static_cast<char>(n & 0xff);
  return out;
}

std::string cborInt(std::int64_t n) {
  return n >= 0 ? head(0, static_cast<std::uint64_t>(n))
                : head(1, static_cast<std::uint64_t>(-1 - n));
}
std::string cborBytes(std::string_view b) {
  return head(2, b.size()) + std::string(b);
}
std::string cborText(std::string_view t) {
  return head(3, t.size()) + std::string(t);
}

std::string bigEndian(std::uint64_t n, int size) {
  std::string out;
  for (int i = size - 1; i >= 0; --i) out += static_cast<char>((n >> (8 * i)) & 0xff);
  return out;
}

std::string parameter(EVP_PKEY* key, const char* name) {
  std::size_t size = 0;
  EVP_PKEY_get_octet_string_param(key, name, nullptr, 0, &size);
  std::string out(size, '\0');
  EVP_PKEY_get_octet_string_param(key, name, reinterpret_cast<unsigned char*>(out.data()),
                                  out.size(), &size);
  return out;
}

std::string number(EVP_PKEY* key, const char* name) {
  BIGNUM* n = nullptr;
  EVP_PKEY_get_bn_param(key, name, &n);
  std::string out(static_cast<std::size_t>(BN_num_bytes(n)), '\0');
  BN_bn2bin(n, reinterpret_cast<unsigned char*>(out.data()));
  BN_free(n);
  return out;
}

}  // namespace

struct TestAuthenticator::Key {
  EVP_PKEY* pkey = nullptr;
  ~Key() { EVP_PKEY_free(pkey); }
};

TestAuthenticator::TestAuthenticator(std::string credentialId, Algorithm algorithm)
    : id_(std::move(credentialId)), algorithm_(algorithm), key_(std::make_unique<Key>()) {
  key_->pkey = algorithm == Algorithm::Es256 ? EVP_EC_gen("P-256")
                                             : EVP_RSA_gen(static_cast<unsigned int>(2048));
  if (!key_->pkey) throw std::runtime_error("no test key");
}

TestAuthenticator::~TestAuthenticator() = default;

std::string TestAuthenticator::coseKey() const {
  if (algorithm_ == Algorithm::Rs256)
    return head(5, 4) + cborInt(1) + cborInt(3) + cborInt(3) + cborInt(-257) + cborInt(-1) +
           cborBytes(number(key_->pkey, OSSL_PKEY_PARAM_RSA_N)) + cborInt(-2) +
           cborBytes(number(key_->pkey, OSSL_PKEY_PARAM_RSA_E));
  // Uncompressed point: 0x04, x, y.
  const std::string point = parameter(key_->pkey, OSSL_PKEY_PARAM_ENCODED_PUBLIC_KEY);
  return head(5, 5) + cborInt(1) + cborInt(2) + cborInt(3) + cborInt(-7) + cborInt(-1) +
         cborInt(1) + cborInt(-2) + cborBytes(point.substr(1, 32)) + cborInt(-3) +
         cborBytes(point.substr(33, 32));
}

std::string TestAuthenticator::clientData(std::string_view type, const Ceremony& c) {
  const std::string challenge = base64UrlEncode(c.challenge);
  return R"({"type":")" + std::string(type) + R"(","challenge":")" + challenge + R"(","origin":")" +
         c.origin + R"(","crossOrigin":false})";
}

MadeRegistration TestAuthenticator::registration(const Ceremony& c) const {
  const std::string data = platform::sha256(c.rpId) + static_cast<char>(c.flags | 0x40) +
                           bigEndian(c.signCount, 4) + std::string(16, '\0') +
                           bigEndian(id_.size(), 2) + id_ + coseKey();
  const std::string object = head(5, 3) + cborText("fmt") + cborText("none") + cborText("attStmt") +
                             head(5, 0) + cborText("authData") + cborBytes(data);
  return {object, clientData("webauthn.create", c)};
}

MadeAssertion TestAuthenticator::assertion(const Ceremony& c) const {
  MadeAssertion a;
  a.authenticatorData =
      platform::sha256(c.rpId) + static_cast<char>(c.flags) + bigEndian(c.signCount, 4);
  a.clientDataJSON = clientData("webauthn.get", c);
  a.signature = sign(a.authenticatorData + platform::sha256(a.clientDataJSON));
  return a;
}

std::string TestAuthenticator::sign(std::string_view message) const {
  EVP_MD_CTX* context = EVP_MD_CTX_new();
  std::size_t size = 0;
  const auto* bytes = reinterpret_cast<const unsigned char*>(message.data());
  EVP_DigestSignInit(context, nullptr, EVP_sha256(), nullptr, key_->pkey);
  EVP_DigestSign(context, nullptr, &size, bytes, message.size());
  std::string out(size, '\0');
  EVP_DigestSign(context, reinterpret_cast<unsigned char*>(out.data()), &size, bytes,
                 message.size());
  EVP_MD_CTX_free(context);
  out.resize(size);
  return out;
}

}  // namespace lad::testing
