// SPDX-License-Identifier: MIT
// Scores as text, the same in every locale.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// The shortest text that names a score: "2.5".
std::string PointsText(double points);

/// The score that a text names, from 0 on; with a point or a comma. Nothing if it names none.
std::optional<double> PointsOf(std::u16string_view text);

/// The score of each of several blanks where it must be a whole number, from 1 on.
int WholeBlankScore(double score, std::size_t blanks);

}  // namespace quorvantis
