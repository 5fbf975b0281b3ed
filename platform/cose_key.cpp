#include "platform/cose_key.h"

#include <openssl/core_names.h>
#include <openssl/evp.h>
#include <openssl/param_build.h>

#include <memory>

#include "platform/cbor_reader.h"

namespace lad::platform {

namespace {

// COSE labels and values.
constexpr std::int64_t kKty = 1, kAlg = 3;
constexpr std::int64_t kKtyEc2 = 2, kKtyRsa = 3;
constexpr std::int64_t kEs256 = -7, kRs256 = -257;
constexpr std::int64_t kEcCurve = -1, kEcX = -2, kEcY = -3, kP256 = 1;
constexpr std::int64_t kRsaN = -1, kRsaE = -2;
constexpr std::size_t kP256Coordinate = 32;

template <class T, void (*Free)(T*)>
struct Freer {
  void operator()(T* p) const { Free(p); }
};
using PKey = std::unique_ptr<EVP_PKEY, Freer<EVP_PKEY, EVP_PKEY_free>>;
using PKeyContext = std::unique_ptr<EVP_PKEY_CTX, Freer<EVP_PKEY_CTX, EVP_PKEY_CTX_free>>;
using ParamBuilder = std::unique_ptr<OSSL_PARAM_BLD, Freer<OSSL_PARAM_BLD, OSSL_PARAM_BLD_free>>;
using Params = std::unique_ptr<OSSL_PARAM, Freer<OSSL_PARAM, OSSL_PARAM_free>>;
using Number = std::unique_ptr<BIGNUM, Freer<BIGNUM, BN_free>>;
using DigestContext = std::unique_ptr<EVP_MD_CTX, Freer<EVP_MD_CTX, EVP_MD_CTX_free>>;

const unsigned char* bytesOf(std::string_view s) {
  return reinterpret_cast<const unsigned char*>(s.data());
}

const std::string* bytesAt(const CborItem& key, std::int64_t label) {
  const CborItem* item = key.find(label);
  return item && item->kind == CborItem::Kind::Bytes ? &item->bytes : nullptr;
}

std::optional<std::int64_t> integerAt(const CborItem& key, std::int64_t label) {
  const CborItem* item = key.find(label);
  if (!item || item->kind != CborItem::Kind::Integer) return std::nullopt;
  return item->integer;
}

PKey fromParams(const char* type, OSSL_PARAM_BLD* builder) {
  Params params(OSSL_PARAM_BLD_to_param(builder));
  PKeyContext context(EVP_PKEY_CTX_new_from_name(nullptr, type, nullptr));
  EVP_PKEY* key = nullptr;
  if (!params || !context || EVP_PKEY_fromdata_init(context.get()) <= 0 ||
      EVP_PKEY_fromdata(context.get(), &key, EVP_PKEY_PUBLIC_KEY, params.get()) <= 0)
    return nullptr;
  return PKey(key);
}

PKey ecKey(const CborItem& cose) {
  const std::string* x = bytesAt(cose, kEcX);
  const std::string* y = bytesAt(cose, kEcY);
  if (integerAt(cose, kEcCurve) != kP256 || !x || !y || x->size() != kP256Coordinate ||
      y->size() != kP256Coordinate)
    return nullptr;
  const std::string point = "\x04" + *x + *y;  // uncompressed
  ParamBuilder builder(OSSL_PARAM_BLD_new());
  if (!builder ||
      !OSSL_PARAM_BLD_push_utf8_string(builder.get(), OSSL_PKEY_PARAM_GROUP_NAME, "prime256v1",
                                       0) ||
      !OSSL_PARAM_BLD_push_octet_string(builder.get(), OSSL_PKEY_PARAM_PUB_KEY, point.data(),
                                        point.size()))
    return nullptr;
  return fromParams("EC", builder.get());
}

PKey rsaKey(const CborItem& cose) {
  const std::string* n = bytesAt(cose, kRsaN);
  const std::string* e = bytesAt(cose, kRsaE);
  if (!n || !e || n->empty() || e->empty()) return nullptr;
  Number modulus(BN_bin2bn(bytesOf(*n), static_cast<int>(n->size()), nullptr));
  Number exponent(BN_bin2bn(bytesOf(*e), static_cast<int>(e->size()), nullptr));
  ParamBuilder builder(OSSL_PARAM_BLD_new());
  if (!modulus || !exponent || !builder ||
      !OSSL_PARAM_BLD_push_BN(builder.get(), OSSL_PKEY_PARAM_RSA_N, modulus.get()) ||
      !OSSL_PARAM_BLD_push_BN(builder.get(), OSSL_PKEY_PARAM_RSA_E, exponent.get()))
    return nullptr;
  return fromParams("RSA", builder.get());
}

// The key, or nullptr with *problem set.
PKey readKey(std::string_view coseKey, std::string* problem) {
  const CborRead read = readCbor(coseKey);
  if (!read.item || read.item->kind != CborItem::Kind::Map) {
    *problem = read.item ? "the public key is not a map" : read.error;
    return nullptr;
  }
  const CborItem& cose = *read.item;
  const auto kty = integerAt(cose, kKty);
  const auto alg = integerAt(cose, kAlg);
  PKey key;
  if (kty == kKtyEc2 && alg == kEs256)
    key = ecKey(cose);
  else if (kty == kKtyRsa && alg == kRs256)
    key = rsaKey(cose);
  else
    *problem = "only ES256 and RS256 keys are taken";
  if (!key && problem->empty()) *problem = "the public key is damaged";
  return key;
}

}  // namespace

std::string coseKeyProblem(std::string_view coseKey) {
  std::string problem;
  readKey(coseKey, &problem);
  return problem;
}

bool coseVerify(std::string_view coseKey, std::string_view message, std::string_view signature) {
  std::string problem;
  const PKey key = readKey(coseKey, &problem);
  DigestContext context(EVP_MD_CTX_new());
  return key && context &&
         EVP_DigestVerifyInit(context.get(), nullptr, EVP_sha256(), nullptr, key.get()) > 0 &&
         EVP_DigestVerify(context.get(), bytesOf(signature), signature.size(), bytesOf(message),
                          message.size()) == 1;
}

std::string sha256(std::string_view data) {
  unsigned char digest[EVP_MAX_MD_SIZE];
  unsigned int size = 0;
  if (EVP_Digest(data.data(), data.size(), digest, &size, EVP_sha256(), nullptr) <= 0) return {};
  return std::string(reinterpret_cast<const char*>(digest), size);
}

}  // namespace lad::platform
