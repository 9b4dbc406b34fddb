// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace quorvantis {

/// How sheets look, on paper above all: black on white, so that they survive a photocopier. The footer group
/// of the table repeats on every page and keeps the place for the foot, which is fixed and repeats, too.
inline constexpr std::u16string_view kSheetStyle =
    uR"css(
body { margin: 0; color: #000; background: #fff; font: 11pt/1.35 sans-serif; }
body.large { font-size: 18pt; line-height: 1.6; word-spacing: 0.15em; }
.sheet { display: table; width: 100%; table-layout: fixed; }
.rows { display: table-row-group; }
.row { display: table-row; break-inside: avoid; orphans: 1; widows: 1; }
.row > div { display: table-cell; padding-bottom: 4mm; }
.large .row > div { padding-bottom: 8mm; }
.reserve { display: table-footer-group; break-inside: avoid; }
.reserve > div { height: 9mm; }
.foot { position: fixed; bottom: 0; left: 0; right: 0; padding-top: 1mm; border-top: 0.2mm solid #000;
        font-size: 9pt; line-height: 4mm; height: 4mm; overflow: hidden; white-space: nowrap; }
.foot .text { white-space: nowrap; }
.foot bdi { margin-inline-end: 6mm; }

.text { white-space: pre-wrap; overflow-wrap: anywhere; unicode-bidi: plaintext; text-align: start;
        overflow-x: clip; }
.text * { max-width: 100%; box-sizing: border-box; }
.text pre, .text nobr, .text [nowrap] { white-space: pre-wrap; }
.title { font-size: 1.5em; font-weight: bold; line-height: 1.25; }
.title .text { text-align: center; }
.subtitle { text-align: center; font-size: 1.15em; font-weight: bold; }
.names { display: table; width: 100%; margin-top: 4mm; }
.names > div { display: table-cell; white-space: nowrap; padding-inline-end: 2mm; }
.names > .blank { width: 26%; border-bottom: 0.25mm solid #000; padding: 0 2mm; }
.names > .gap { width: 4mm; padding: 0; }
.note { margin-top: 3mm; font-size: 0.9em; }

.question { display: table; width: 100%; table-layout: fixed; break-inside: avoid; orphans: 2; widows: 2; }
.question > div { display: table-cell; vertical-align: top; }
.number { width: 2.8em; font-weight: bold; }
.points { width: 6em; text-align: end; font-size: 0.9em; }
.option { display: table; margin-top: 1mm; }
.large .option { margin-top: 3mm; }
.option > div { display: table-cell; vertical-align: top; }
.option > .letter { min-width: 1.9em; padding-inline-end: 2mm; white-space: nowrap; }
.option.right > .text { font-weight: bold; }
.right > .letter b { border: 0.5mm solid #000; padding: 0 1mm; }
.right > .letter b::before { content: "\2713\00a0"; }
.line { height: 9mm; border-bottom: 0.25mm solid #000; }
.large .line { height: 14mm; }
.answer { margin-top: 2mm; padding: 1mm 2mm; border: 0.5mm solid #000; font-weight: bold; }
.answer > bdi { font-weight: normal; font-size: 0.9em; }
.file { margin-top: 2mm; }
.file img[data-name] { max-height: 90mm; }
.file > .name { display: inline-block; padding: 1mm 2mm; border: 0.25mm solid #000; }

.keys { display: inline-table; vertical-align: top; width: 41mm; margin: 0 0 4mm; margin-inline-end: 3mm;
        border-collapse: collapse; text-align: start; }
.large .keys { width: 84mm; }
.keys.wide, .large .keys.wide { display: table; width: 100%; margin-inline-end: 0; }
.keys th { white-space: nowrap; font-size: 0.8em; font-weight: normal; border-bottom: 0.4mm solid #000; text-align: start; }
.keys td { border-bottom: 0.2mm solid #000; padding: 0.6mm 1mm; vertical-align: top; }
.keys td:first-child { width: 2.6em; }
.keys td:last-child, .keys th:last-child { text-align: end; }
.keys tr { break-inside: avoid; }
.keys .letters { font-weight: bold; word-spacing: 0.2em; white-space: nowrap; }
.sum { font-weight: bold; border-top: 0.6mm solid #000; padding-top: 2mm; }

.ten { display: inline-block; vertical-align: top; margin-bottom: 4mm; margin-inline-end: 4mm; white-space: nowrap; }
.large .ten { margin-inline-end: 12mm; }
.choice { height: 6.3mm; line-height: 6.3mm; font-size: 10pt; }
.large .choice { height: 10mm; line-height: 10mm; font-size: 16pt; }
.choice > b { display: inline-block; width: 8.5mm; padding-inline-end: 1.5mm; box-sizing: border-box; text-align: end; }
.large .choice > b { width: 15mm; }
.choice > i { display: inline-block; box-sizing: border-box; width: 5mm; height: 5mm; line-height: 4.2mm;
              margin-inline-end: 1.2mm; border: 0.35mm solid #000; text-align: center; font: normal 8.5pt/4.2mm sans-serif; }
.large .choice > i { width: 8.5mm; height: 8.5mm; margin-inline-end: 2.5mm; font: normal 13pt/7.7mm sans-serif; }
.written { display: table; width: 100%; }
.written > div { display: table-cell; }
.written > .number { width: 2.8em; vertical-align: bottom; }
.space > .number { vertical-align: top; }

.buttons { display: none; }
@media screen {
  body { max-width: 180mm; margin: 0 auto; padding: 16mm 8mm 8mm; }
  .foot { display: none; }
  .buttons { display: block; position: fixed; inset: 0 0 auto; z-index: 1; padding: 2mm; text-align: center;
             background: #eee; border-bottom: 1px solid #999; font-size: 11pt; }
  .buttons input { font: 11pt sans-serif; padding: 1mm 4mm; margin: 0 1mm; }
}
)css";

/// What is different in a pane.
inline constexpr std::u16string_view kPaneStyle =
    uR"css(
@media screen { body { max-width: none; margin: 0; padding: 3mm; } }
)css";

/// Gives each text of an author its markup. By itself, so that what it leaves open ends with it; and without
/// what would change the rest of the page.
inline constexpr std::u16string_view kSheetScript =
    uR"js(
for (const field of document.querySelectorAll('.text')) {
  const parsed = document.createElement('template');
  parsed.innerHTML = field.textContent;
  for (const element of parsed.content.querySelectorAll('base, meta, link')) element.remove();
  field.replaceChildren(parsed.content);
}
)js";

}  // namespace quorvantis
