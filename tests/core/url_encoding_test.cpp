#include "core/url_encoding.h"

#include <gtest/gtest.h>

namespace lad {
namespace {

TEST(UrlEncoding, QueryValuesKeepNothingStructuralAndLinksKeepLettersOfAnyScript) {
  EXPECT_EQ(stringToUrl(std::nullopt), "");
  EXPECT_EQ(stringToUrl("!*'();:@&=+$,/?%#[]"),
            "%21%2A%27%28%29%3B%3A%40%26%3D%2B%24%2C%2F%3F%25%23%5B%5D");
  EXPECT_EQ(stringToUrl("Az09-._~"), "Az09-._~");
  EXPECT_EQ(stringToUrl("a b\"<>\\^`{|}\n"), "a%20b%22%3C%3E%5C%5E%60%7B%7C%7D%0A");
  EXPECT_EQ(urlString("Мама & я"), "%D0%9C%D0%B0%D0%BC%D0%B0%20%26%20%D1%8F");
  EXPECT_EQ(encodeUrl("/mobile/фото 1.jpg?x=y"), "/mobile/фото%201.jpg?x%3Dy");
  EXPECT_EQ(encodeUrl("e\xCC\x81"), "e\xCC\x81");                // a combining mark
  EXPECT_EQ(encodeUrl("\xD9\xA3\xC2\xBD"), "\xD9\xA3\xC2\xBD");  // Arabic-Indic three, one half
  EXPECT_EQ(encodeUrl("#&%+"), "%23%26%25%2B");
  EXPECT_EQ(encodeUrl("\xF0\x9F\x98\x80"), "%F0%9F%98%80");  // a symbol
  EXPECT_EQ(encodeUrl("a\xFF"
                      "b\xD0"),
            "a%FFb%D0");  // broken UTF-8
}

}  // namespace
}  // namespace lad
