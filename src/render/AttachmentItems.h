// SPDX-License-Identifier: MIT
// Attached files inside pages.
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

struct ExamServices;

std::u16string ImageItem(std::u16string_view path);
std::u16string DocumentItem(std::u16string_view path);
std::u16string FlashItem(std::u16string_view path);

/// A player for the file. With `muteVideo` 1 the video files among them are played without audio.
std::u16string MediaItem(const ExamServices& services, std::u16string_view path, int autostart,
                         int muteVideo);

/// A file attached to a question. With `oralFlag` 1 videos are muted. Files of unknown kinds are left to the
/// player.
std::u16string AttachmentItem(const ExamServices& services, std::u16string_view path, int oralFlag);

}  // namespace quorvantis
