// SPDX-License-Identifier: MIT
#include "platform/digest/OpenSslDigest.h"

#include <openssl/evp.h>

#include <fstream>
#include <memory>
#include <vector>

namespace quorvantis {
namespace {

/// A digest that is being made.
class Sha256 : public RunningDigest {
 public:
  Sha256() : isGood_(context_ && EVP_DigestInit_ex(context_.get(), EVP_sha256(), nullptr) == 1) {}

  void Add(std::string_view bytes) override {
    isGood_ = isGood_ && EVP_DigestUpdate(context_.get(), bytes.data(), bytes.size()) == 1;
  }

  std::string Text() override {
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned length = 0;
    if (!isGood_ || EVP_DigestFinal_ex(context_.get(), digest, &length) != 1) return {};
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    for (unsigned i = 0; i < length; ++i) {
      text.push_back(kDigits[digest[i] >> 4]);
      text.push_back(kDigits[digest[i] & 15]);
    }
    return text;
  }

 private:
  std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> context_{EVP_MD_CTX_new(), &EVP_MD_CTX_free};
  bool isGood_;
};

}  // namespace

std::string OpenSslDigest::OfFile(const std::filesystem::path& file) const {
  constexpr std::size_t kBlock = std::size_t{512} * 1024;
  std::error_code error;
  if (!std::filesystem::is_regular_file(file, error)) return {};
  std::ifstream in;
  in.rdbuf()->pubsetbuf(nullptr, 0);
  in.open(file, std::ios::binary);
  if (!in) return {};
  Sha256 digest;
  std::vector<char> block(kBlock);
  while (in.read(block.data(), kBlock) || in.gcount() > 0)
    digest.Add({block.data(), static_cast<std::size_t>(in.gcount())});
  return in.eof() ? digest.Text() : std::string();
}

std::string OpenSslDigest::OfBytes(std::string_view bytes) const {
  Sha256 digest;
  digest.Add(bytes);
  return digest.Text();
}

std::unique_ptr<RunningDigest> OpenSslDigest::Begin() const {
  return std::make_unique<Sha256>();
}

}  // namespace quorvantis
