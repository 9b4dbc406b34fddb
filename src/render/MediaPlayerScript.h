// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

struct ExamServices;

/// A place in the page with a script that puts a player for `source` there, by browser and system.
/// `autostart` is 0 or 1; without audio a video is shown mute by the players that can.
std::u16string MediaPlayerScript(const ExamServices& services, std::u16string_view source, int autostart,
                                 bool noAudio);

/// The text with every backslash doubled, for a script or a parameter that takes them as escapes.
std::u16string DoubleBackslashes(std::u16string_view text);

}  // namespace quorvantis
