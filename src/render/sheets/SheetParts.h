// SPDX-License-Identifier: MIT
// What the sheets have in common.
#pragma once

#include "model/document/FrameSetExam.h"
#include "render/sheets/SheetRequest.h"

#include <string>
#include <string_view>

namespace quorvantis {

/// An author's text. Its markup works, as on the other pages of an exam, but only within this field; and
/// every kind of line end is one.
std::u16string Field(std::u16string_view text);

/// A text of the program.
std::u16string Caption(const FrameSetExam& exam, int text);

/// The same with a value in place of its "%1"; escaped.
std::u16string Caption(const FrameSetExam& exam, int text, std::u16string_view value);

/// One part of a page, kept together on a sheet of paper where that is possible.
std::u16string Row(std::u16string_view content);

/// The title, what the sheet is (empty for a paper), and lines for the name and what else a pupil fills in.
enum class NameLines { None, Wanted };
std::u16string Heading(const FrameSetExam& exam, const SheetRequest& request, std::u16string_view subtitle,
                       NameLines names);

/// The page around its rows.
std::u16string SheetPage(const FrameSetExam& exam, const SheetRequest& request, std::u16string_view rows);

/// The same for a pane of a window: without buttons and a foot, as wide as the pane.
std::u16string PanePage(const FrameSetExam& exam, const SheetRequest& request, std::u16string_view rows);

}  // namespace quorvantis
