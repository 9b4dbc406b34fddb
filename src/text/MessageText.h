// SPDX-License-Identifier: MIT
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace quorvantis {

/// `format` with each "%s" and "%d" replaced, in order, by the next of `values`. So is a group of forms in
/// braces, "{1:%s question|%s questions}": the next value is the number that is counted, and "%s" in the form
/// that fits it (text/CountedForm.h). A placeholder without a value is left standing, a value without a
/// placeholder is not shown; so no translation can break a message.
std::u16string FillMessage(std::u16string_view format, std::initializer_list<std::u16string_view> values);

}  // namespace quorvantis
