// SPDX-License-Identifier: MIT
// What replaces the matches of rules in a marked text.
#pragma once

#include <string_view>

namespace quorvantis {

inline constexpr std::u16string_view kQuestionMarker = u"!!!!!";
inline constexpr std::u16string_view kAnswerMarker = u"@@@@@";         ///< the question's own answer follows
inline constexpr std::u16string_view kAnswerSectionMarker = u"$$$$$";  ///< no questions follow
inline constexpr std::u16string_view kPictureMarker = u"#####";        ///< a picture of the question
inline constexpr std::u16string_view kOptionPictureMarker = u"&&&&&";  ///< counted, not attached

// What stands for pictures and formulas in the text of a paper.
inline constexpr std::u16string_view kPictureSuffix = u".bmp";
inline constexpr std::u16string_view kFormulaText = u"##";

}  // namespace quorvantis
