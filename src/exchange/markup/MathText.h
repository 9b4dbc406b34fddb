// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

/// The content of a formula in MathML as HTML in one line: "(1)/(2)", "√(2)", "x<sup>2</sup>". Elements that
/// say nothing about the order of what they hold count as their content; so do those nested too deeply.
/// Takes time in proportion to the text.
std::u16string MathAsHtml(std::u16string_view mathml);

}  // namespace quorvantis
