// SPDX-License-Identifier: MIT
// The kinds of attached files that pages and lists treat alike, by their extensions in lower case.
#pragma once

#include <string_view>

namespace quorvantis {

inline constexpr std::u16string_view kPictureExtensions = u"jpg,jpeg,bmp,gif";
inline constexpr std::u16string_view kFlashExtensions = u"swf";
inline constexpr std::u16string_view kMediaExtensions = u"mpg,mpeg,dat,mp3,asf,avi,wav,wmv,wma";
inline constexpr std::u16string_view kVideoExtensions = u"wmv,avi,mpeg,asf,swf";
inline constexpr std::u16string_view kDocumentExtensions = u"doc,docx,ppt,pptx,xls,xlsx,txt";

/// Whether one of the extensions of `list` is `extension`. An empty one is not.
bool IsOneOf(std::u16string_view list, std::u16string_view extension);

/// Whether `list` contains `extension`, even inside a word ("pe" in "jpeg"); any list contains an empty one.
/// Deliberate: it decides what such a file looks like on a page.
bool IsFoundIn(std::u16string_view list, std::u16string_view extension);

/// Whether the name or path ends like a video's. Flash counts as one, although it never selects the player.
bool HasVideoExtension(std::u16string_view path);

}  // namespace quorvantis
