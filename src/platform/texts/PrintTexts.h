// SPDX-License-Identifier: MIT
// What is said after a print was started.
#pragma once

namespace quorvantis::text_id {

constexpr int kPrintComes = 1800;  // "Preparing to print… Escape cancels."
constexpr int kPrintWaits = 1801;  // what to expect, in its tooltip

constexpr int kCheckPrintWrong = 1964;
constexpr int kCheckPrintGoesOn = 1965;

}  // namespace quorvantis::text_id
