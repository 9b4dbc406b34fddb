// SPDX-License-Identifier: MIT
// The common look of the window's controls: edges, and how they show hover and focus. All colours come from
// the palette, so they suit light and dark desktops in every style.
#pragma once

#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <QWidget>

namespace quorvantis {

inline constexpr qreal kCornerRadius = 4;

/// The tint of a button under the mouse, and of one that is held down.
inline constexpr qreal kHoverTint = 0.14;
inline constexpr qreal kPressedTint = 0.34;

/// A rounded surface in the selection colour, with this opacity.
void PaintTint(QPainter& painter, const QRectF& place, const QPalette& colours, qreal opacity);

/// The frame of the control with the keyboard focus.
void PaintFocusFrame(QPainter& painter, const QRectF& place, const QPalette& colours);

/// A rounded line at the edge of `place`.
void PaintEdge(QPainter& painter, const QRectF& place, const QPalette& colours, qreal radius = kCornerRadius);

/// The edge of a field or a list; different while it has the focus.
void PaintFieldEdge(QPainter& painter, const QWidget& field);

}  // namespace quorvantis
