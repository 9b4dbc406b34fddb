// SPDX-License-Identifier: MIT
// What pages make of the path of an attached file.
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// The address of a file in a page: from the first "~" on, where a work folder beside the pages begins;
/// otherwise the path without the prefix of three characters that a preview gives it (see
/// FrameSetExam::PrefixAttachmentPaths).
std::u16string_view RelativeSource(std::u16string_view path);

/// The address that a player gets. Of the work folders only the oral answers ("~Ans") count here,
/// deliberately: a player does not know the folder of the page and needs full paths.
std::u16string_view PlayerSource(std::u16string_view path);

/// What follows the last dot of the whole path, in lower case: in "a.b/file" that is "b/file". The two forms
/// differ for a path without a dot on purpose, the pane and the items have always told it apart in this way.
std::u16string ExtensionOrPath(std::u16string_view path);     ///< the whole path then
std::u16string ExtensionOrNothing(std::u16string_view path);  ///< an empty text then

inline constexpr std::u16string_view kPictureExtensions = u"jpg,jpeg,bmp,gif";
inline constexpr std::u16string_view kMediaExtensions = u"mpg,mpeg,dat,mp3,asf,avi,wav,wmv,wma";
inline constexpr std::u16string_view kPaneDocumentExtensions = u"doc,ppt,xls,txt";
inline constexpr std::u16string_view kQuestionDocumentExtensions = u"doc,docx,ppt,pptx,xls,xlsx,txt";
inline constexpr std::u16string_view kFlashExtensions = u"swf";

/// Whether `extension` stands anywhere in `list`, as a part of a word too ("pe" in "jpeg"), and an empty one
/// in any list. Deliberate: what kind of item such a file gets depends on it.
bool IsFoundIn(std::u16string_view list, std::u16string_view extension);

}  // namespace quorvantis
