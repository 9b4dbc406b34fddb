// SPDX-License-Identifier: MIT
#include "cli/Sha256.h"

#include "examfile/ByteSource.h"

#include <openssl/evp.h>

#include <memory>

namespace quorvantis::cli {

std::string Sha256OfFile(const std::filesystem::path& file) {
  ByteSource source(file);
  if (!source.IsOpen()) return {};
  const std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
  if (!context || EVP_DigestInit_ex(context.get(), EVP_sha256(), nullptr) != 1) return {};
  source.Take(source.Size(),
              [&](std::string_view bytes) { EVP_DigestUpdate(context.get(), bytes.data(), bytes.size()); });
  unsigned char digest[EVP_MAX_MD_SIZE];
  unsigned length = 0;
  EVP_DigestFinal_ex(context.get(), digest, &length);
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  for (unsigned i = 0; i < length; ++i) {
    text.push_back(kDigits[digest[i] >> 4]);
    text.push_back(kDigits[digest[i] & 15]);
  }
  return text;
}

}  // namespace quorvantis::cli
