// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace quorvantis {

/// Where a bank lies: the index, which can be made again at any time, and the list of its folders, which the
/// user has chosen and which is kept when the index is lost.
struct BankPlace {
  std::filesystem::path index;
  std::filesystem::path folders;
};

/// The user's own bank: the index in the cache folder, the list in the data folder (XDG_CACHE_HOME and
/// XDG_DATA_HOME, or what stands for them).
BankPlace UsualBankPlace();

/// A bank whose index is `file`, with the list of folders beside it.
BankPlace BankPlaceAt(const std::filesystem::path& file);

}  // namespace quorvantis
