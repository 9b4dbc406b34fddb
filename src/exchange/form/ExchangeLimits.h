// SPDX-License-Identifier: MIT
// How much of a stranger's file is read, in bytes. What exceeds a limit is refused or left out, and told.
#pragma once

#include <cstddef>

namespace quorvantis {

inline constexpr std::size_t kMaxExchangedFile = std::size_t{50} << 20;   ///< one attached file, or a text
inline constexpr std::size_t kMaxSourceFile = std::size_t{256} << 20;     ///< a file with others inside
inline constexpr std::size_t kMaxUnpackedFiles = std::size_t{512} << 20;  ///< all attached files together
inline constexpr std::size_t kMaxReadText = 1'000'000;  ///< one text of a question, in UTF-16 code units
inline constexpr std::size_t kMaxReadQuestions = 5000;  ///< of one file; more than an exam takes
inline constexpr std::size_t kMaxReadFiles = 100;       ///< of one question; more than it takes in an exam

}  // namespace quorvantis
