// SPDX-License-Identifier: MIT
#include "desktop/studio/RoleLook.h"

#include "platform/WordContent.h"

#include <QPainter>
#include <QPixmap>
#include <QTextLayout>

#include <array>

namespace quorvantis {
namespace {

constexpr int kDark = 128;  // of lightness

struct Look {
  QRgb onLight;
  QRgb onDark;
  QTextCharFormat::UnderlineStyle line = QTextCharFormat::NoUnderline;
  bool hasLineAbove = false;
  bool isStruckOut = false;
};

/// By the numbers of the roles. No two have the same lines.
constexpr std::array<Look, kPaperRoles> kLooks = {{
    {0, 0, QTextCharFormat::WaveUnderline},
    {0xFFB9D7FF, 0xFF1E4A80, QTextCharFormat::SingleUnderline},
    {0xFFE3EEFF, 0xFF203047, QTextCharFormat::NoUnderline},
    {0xFFFFD9A0, 0xFF6B4610, QTextCharFormat::DashUnderline},
    {0xFFFFF3D6, 0xFF40331A, QTextCharFormat::DotLine},
    {0xFFB5E6B5, 0xFF1F5A2A, QTextCharFormat::DashDotLine},
    {0xFFDDF6DD, 0xFF203C26, QTextCharFormat::DashDotDotLine},
    {0xFFE6CCFF, 0xFF4B2A6B, QTextCharFormat::NoUnderline, true},
    {0xFFE4E4E4, 0xFF3C3C3C, QTextCharFormat::NoUnderline, false, true},
}};

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < kDark;
}

}  // namespace

QTextCharFormat LookOf(PaperRole role, const QPalette& palette) {
  const Look& look = kLooks[static_cast<std::size_t>(role)];
  QTextCharFormat format;
  if (role != PaperRole::None)
    format.setBackground(QColor::fromRgb(IsDark(palette) ? look.onDark : look.onLight));
  format.setForeground(palette.color(QPalette::Text));
  if (look.line != QTextCharFormat::NoUnderline) {
    format.setUnderlineStyle(look.line);
    const bool isWarning = role == PaperRole::None;
    format.setUnderlineColor(isWarning ? QColor(Qt::red) : palette.color(QPalette::Text));
  }
  format.setFontOverline(look.hasLineAbove);
  format.setFontStrikeOut(look.isStruckOut);
  return format;
}

void AddEmphasis(QTextCharFormat& look, std::uint8_t emphasis, const QPalette& palette) {
  constexpr auto kOther = emphasis::kUnderlined | emphasis::kColoured | emphasis::kHighlighted;
  if ((emphasis & (emphasis::kBold | kOther)) != 0) look.setFontWeight(QFont::Bold);
  if ((emphasis & emphasis::kItalic) != 0) look.setFontItalic(true);
  if ((emphasis & kOther) != 0) look.setForeground(palette.color(QPalette::Link));
}

void AddMarkLook(QTextCharFormat& look, const QPalette& palette) {
  look.setBackground(palette.color(QPalette::Text));
  look.setForeground(palette.color(QPalette::Base));
}

QIcon SampleOf(PaperRole role, QSize size, const QPalette& palette, const QFont& font, qreal ratio) {
  QPixmap picture(size * ratio);
  picture.setDevicePixelRatio(ratio);
  picture.fill(palette.color(QPalette::Base));
  QPainter painter(&picture);
  QString letters = QStringLiteral("abc");
  while (letters.size() > 1 && QFontMetrics(font).horizontalAdvance(letters) > size.width()) letters.chop(1);
  QTextLayout layout(letters, font);
  layout.setFormats({{0, static_cast<int>(letters.size()), LookOf(role, palette)}});
  layout.beginLayout();
  QTextLine line = layout.createLine();
  layout.endLayout();
  const QSizeF free = QSizeF(size) - QSizeF(line.naturalTextWidth(), line.height());
  layout.draw(&painter, {free.width() / 2, free.height() / 2});
  return picture;
}

}  // namespace quorvantis
