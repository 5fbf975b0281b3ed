#include "platform/webauthn_verify.h"

#include "core/base64.h"
#include "core/value.h"
#include "platform/cbor_reader.h"
#include "platform/cose_key.h"

namespace lad::platform {

namespace {

// Layout of authenticator data: rpIdHash(32) flags(1) signCount(4) [aaguid(16) idLength(2) id
// key].
constexpr std::size_t kRpIdHashSize = 32, kFlagsAt = 32, kCountAt = 33, kHeaderSize = 37;
constexpr std::size_t kAaguidSize = 16;
constexpr std::uint8_t kUserPresent = 0x01, kUserVerified = 0x04, kAttestedData = 0x40;

std::uint32_t bigEndian(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t n = 0;
  for (std::size_t i = 0; i < size; ++i) n = (n << 8) | static_cast<std::uint8_t>(bytes[at + i]);
  return n;
}

// Empty when the client data is of `type`, answers our challenge and comes from our host.
std::string clientDataProblem(std::string_view clientDataJSON, std::string_view type,
                              const WebAuthnExpected& expected) {
  const auto data = Value::fromJson(clientDataJSON);
  if (!data || !data->asMap()) return "the client data is not a JSON object";
  const std::string* gotType = (*data)["type"].asText();
  const std::string* challenge = (*data)["challenge"].asText();
  const std::string* origin = (*data)["origin"].asText();
  if (!gotType || *gotType != type) return "the client data is of another ceremony";
  if (!challenge || *challenge != base64UrlEncode(expected.challenge))
    return "the client data answers another challenge";
  if (!origin || (*origin != "http://" + expected.host && *origin != "https://" + expected.host) ||
      (*data)["crossOrigin"].boolValue())
    return "the client data comes from another origin";
  return {};
}

// Empty when the data is for our relying party with the user present and verified.
std::string authenticatorDataProblem(std::string_view data, const WebAuthnExpected& expected) {
  if (data.size() < kHeaderSize) return "the authenticator data is cut short";
  if (data.substr(0, kRpIdHashSize) != sha256(expected.rpId))
    return "the authenticator data is for another site";
  const auto flags = static_cast<std::uint8_t>(data[kFlagsAt]);
  if (!(flags & kUserPresent) || !(flags & kUserVerified))
    return "the user was not present and verified";
  return {};
}

// The credential in the attested part of registration data.
WebAuthnRegistration attestedCredential(std::string_view data) {
  WebAuthnRegistration r;
  const auto flags = static_cast<std::uint8_t>(data[kFlagsAt]);
  const std::size_t idAt = kHeaderSize + kAaguidSize + 2;
  if (!(flags & kAttestedData) || data.size() < idAt) {
    r.error = "the registration carries no credential";
    return r;
  }
  const std::size_t idSize = bigEndian(data, idAt - 2, 2);
  if (idSize == 0 || data.size() - idAt < idSize) {
    r.error = "the credential id is cut short";
    return r;
  }
  const std::string_view keyBytes = data.substr(idAt + idSize);
  const CborRead key = readCbor(keyBytes);
  if (!key.item) {
    r.error = key.error;
    return r;
  }
  WebAuthnCredential credential{std::string(data.substr(idAt, idSize)),
                                std::string(keyBytes.substr(0, key.used)),
                                bigEndian(data, kCountAt, 4)};
  r.error = coseKeyProblem(credential.publicKey);
  if (r.error.empty()) r.credential = std::move(credential);
  return r;
}

WebAuthnRegistration refusedRegistration(std::string why) {
  WebAuthnRegistration r;
  r.error = std::move(why);
  return r;
}

WebAuthnAssertion refusedAssertion(std::string why) {
  WebAuthnAssertion r;
  r.error = std::move(why);
  return r;
}

}  // namespace

WebAuthnRegistration readRegistration(std::string_view attestationObject,
                                      std::string_view clientDataJSON,
                                      const WebAuthnExpected& expected) {
  if (auto problem = clientDataProblem(clientDataJSON, "webauthn.create", expected);
      !problem.empty())
    return refusedRegistration(problem);
  const CborRead read = readCbor(attestationObject);
  if (!read.item) return refusedRegistration(read.error);
  const CborItem* format = read.item->find("fmt");
  const CborItem* data = read.item->find("authData");
  if (!format || format->kind != CborItem::Kind::Text || format->bytes != "none")
    return refusedRegistration("only \"none\" attestation is taken");
  if (!data || data->kind != CborItem::Kind::Bytes)
    return refusedRegistration("the attestation has no authenticator data");
  if (auto problem = authenticatorDataProblem(data->bytes, expected); !problem.empty())
    return refusedRegistration(problem);
  return attestedCredential(data->bytes);
}

WebAuthnAssertion verifyAssertion(const WebAuthnCredential& credential,
                                  std::string_view authenticatorData,
                                  std::string_view clientDataJSON, std::string_view signature,
                                  const WebAuthnExpected& expected) {
  if (auto problem = clientDataProblem(clientDataJSON, "webauthn.get", expected); !problem.empty())
    return refusedAssertion(problem);
  if (auto problem = authenticatorDataProblem(authenticatorData, expected); !problem.empty())
    return refusedAssertion(problem);
  const std::string signedData = std::string(authenticatorData) + sha256(clientDataJSON);
  if (!coseVerify(credential.publicKey, signedData, signature))
    return refusedAssertion("the signature does not match the key");
  const std::uint32_t count = bigEndian(authenticatorData, kCountAt, 4);
  // A counter that does not grow means a copied key; keys that keep no counter send zero.
  if ((count != 0 || credential.signCount != 0) && count <= credential.signCount)
    return refusedAssertion("the signature counter went backwards");
  WebAuthnAssertion r;
  r.signCount = count;
  return r;
}

}  // namespace lad::platform
