// SPDX-License-Identifier: MIT
#include "bank/index/BankPlace.h"

#include <cstdlib>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

/// A folder that an environment variable names, or the usual one below the user's home.
fs::path UserFolder(const char* variable, const fs::path& usual) {
  const auto fromEnvironment = [](const char* name) {
    const char* const value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing sets it
    return value == nullptr ? fs::path() : fs::path(value);
  };
  const fs::path named = fromEnvironment(variable);
  return (named.is_absolute() ? named : fromEnvironment("HOME") / usual) / "quorvantis";
}

}  // namespace

BankPlace UsualBankPlace() {
  return {UserFolder("XDG_CACHE_HOME", ".cache") / "bank.sqlite",
          UserFolder("XDG_DATA_HOME", fs::path(".local") / "share") / "bank-folders.txt"};
}

BankPlace BankPlaceAt(const fs::path& file) {
  fs::path folders = file;
  folders += "-folders.txt";
  return {file, folders};
}

}  // namespace quorvantis
