// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quorvantis {

/// A path as text, for the exam document and the window. File names that are not valid UTF-8 survive the
/// round trip: each invalid byte b becomes the lone surrogate U+DC00 + b.
std::u16string PathToText(const std::filesystem::path& path);

/// The path that a text names; see `PathToText`. Any other lone surrogate becomes U+FFFD.
std::filesystem::path TextToPath(std::u16string_view text);

/// The longest file or folder name that common file systems accept, in bytes of UTF-8.
constexpr std::size_t kMaxFileNameBytes = 255;

/// `name` itself when it has at most `maxBytes` bytes in UTF-8; otherwise its beginning, a hash of the whole
/// name and its extension, together at most `maxBytes`, which is 64 or more. Equal names give equal results
/// and different ones different results, so the result can replace a name that is too long for the file
/// system.
std::u16string FitFileName(std::u16string_view name, std::size_t maxBytes = kMaxFileNameBytes);

/// What follows the last dot of the whole path, in lower case: in "a.b/file" that is "b/file". Deliberate:
/// the two forms differ for a path without a dot, since the places that use them always have.
std::u16string ExtensionOrPath(std::u16string_view path);     ///< the whole path then
std::u16string ExtensionOrNothing(std::u16string_view path);  ///< an empty text then

}  // namespace quorvantis
