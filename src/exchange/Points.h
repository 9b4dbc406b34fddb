// SPDX-License-Identifier: MIT
// Scores as text, the same in every locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis {

/// The shortest text that names a score: "2.5".
std::string PointsText(double points);

/// The score that a text names, from 0 on; with a point or a comma. Nothing if it names none.
std::optional<double> PointsOf(std::u16string_view text);

}  // namespace quorvantis
