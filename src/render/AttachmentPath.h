// SPDX-License-Identifier: MIT
// How pages use the path of an attached file.
#pragma once

#include <string_view>

namespace quorvantis {

/// The address of a file in a page: from the first "~" on, where a work folder beside the pages begins;
/// otherwise the path without the prefix of three characters that a preview gives it (see
/// FrameSetExam::PrefixAttachmentPaths).
std::u16string_view RelativeSource(std::u16string_view path);

/// The address for a player. Deliberate: of the work folders only the oral answers ("~Ans") count here, since
/// a player does not know the folder of the page and needs full paths.
std::u16string_view PlayerSource(std::u16string_view path);

}  // namespace quorvantis
