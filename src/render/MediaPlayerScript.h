// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

struct ExamServices;

/// A place in the page, and a script that puts a player for `source` there, depending on browser and system.
/// `autostart` is 0 or 1; without audio, players that can do so mute a video.
std::u16string MediaPlayerScript(const ExamServices& services, std::u16string_view source, int autostart,
                                 bool noAudio);

/// The text with every backslash doubled, for scripts and parameters that treat them as escapes.
std::u16string DoubleBackslashes(std::u16string_view text);

}  // namespace quorvantis
