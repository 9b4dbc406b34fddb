// SPDX-License-Identifier: MIT
// How pages use the path of an attached file.
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// The address of a file in a page: from the first "~" on, where a work folder beside the pages begins;
/// otherwise the path without the prefix of three characters that a preview gives it (see
/// FrameSetExam::PrefixAttachmentPaths).
std::u16string_view RelativeSource(std::u16string_view path);

/// The address for a player. Deliberate: of the work folders only the oral answers ("~Ans") count here, since
/// a player does not know the folder of the page and needs full paths.
std::u16string_view PlayerSource(std::u16string_view path);

/// What follows the last dot of the whole path, in lower case: in "a.b/file" that is "b/file". Deliberate:
/// the two forms differ for a path without a dot, since the pane and the items always have.
std::u16string ExtensionOrPath(std::u16string_view path);     ///< the whole path then
std::u16string ExtensionOrNothing(std::u16string_view path);  ///< an empty text then

inline constexpr std::u16string_view kPictureExtensions = u"jpg,jpeg,bmp,gif";
inline constexpr std::u16string_view kMediaExtensions = u"mpg,mpeg,dat,mp3,asf,avi,wav,wmv,wma";
inline constexpr std::u16string_view kPaneDocumentExtensions = u"doc,ppt,xls,txt";
inline constexpr std::u16string_view kQuestionDocumentExtensions = u"doc,docx,ppt,pptx,xls,xlsx,txt";
inline constexpr std::u16string_view kFlashExtensions = u"swf";

/// Whether `list` contains `extension`, even inside a word ("pe" in "jpeg"); any list contains an empty one.
/// Deliberate: it decides what such a file looks like on a page.
bool IsFoundIn(std::u16string_view list, std::u16string_view extension);

}  // namespace quorvantis
