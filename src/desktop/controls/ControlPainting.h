// SPDX-License-Identifier: MIT
// What the window's controls look like alike: edges, and how they show that they can be pressed and that they
// have the keyboard. All follows from the palette, so that it suits light and dark desktops, whatever the
// style.
#pragma once

#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <QWidget>

namespace quorvantis {

inline constexpr qreal kCornerRadius = 4;

/// The tint of a button below the mouse, and of one that is held down.
inline constexpr qreal kHoverTint = 0.14;
inline constexpr qreal kPressedTint = 0.34;

/// A rounded surface in the colour of selections, so strong that `opacity` of what is below it is hidden.
void PaintTint(QPainter& painter, const QRectF& place, const QPalette& colours, qreal opacity);

/// The frame of the control that has the keyboard.
void PaintFocusFrame(QPainter& painter, const QRectF& place, const QPalette& colours);

/// A rounded line at the edge of `place`.
void PaintEdge(QPainter& painter, const QRectF& place, const QPalette& colours, qreal radius = kCornerRadius);

/// The edge of a field or a list; another one while it has the keyboard.
void PaintFieldEdge(QPainter& painter, const QWidget& field);

}  // namespace quorvantis
