// SPDX-License-Identifier: MIT
#include "preview/FramePages.h"

namespace quorvantis {
namespace {

constexpr char kStyle[] =
    "body{margin:8px;font:14px sans-serif;background:#fff}"
    "img{display:block;width:100%;max-width:900px;margin:0 auto 8px;border:1px solid "
    "#ccc;box-sizing:border-box;"
    "break-inside:avoid}"
    "pre{margin:0;white-space:pre-wrap;overflow-wrap:anywhere;font:inherit}"
    ".notice{padding:12px;border:1px dashed #999;color:#444;background:#f6f6f6;overflow-wrap:anywhere}"
    "@media print{img{border:none}}";

constexpr char kReloadWhenReady[] =
    "<script>(function(){var wait=new XMLHttpRequest();wait.open('GET',location.pathname+'?wait');"
    "wait.onload=function(){location.reload()};wait.send()})()</script>";

QByteArray Page(const QString& body) {
  return ("<!DOCTYPE html><html><head><meta charset=\"utf-8\"><style>" + QLatin1String(kStyle) +
          "</style></head><body>" + body + "</body></html>")
      .toUtf8();
}

QString Notice(const QString& text) {
  return text.isEmpty() ? QString() : "<div class=\"notice\">" + text.toHtmlEscaped() + "</div>";
}

}  // namespace

QByteArray NoticePage(const QString& text) {
  return Page(Notice(text));
}

QByteArray WaitingPage(const QString& text) {
  return Page(Notice(text) + QLatin1String(kReloadWhenReady));
}

QByteArray PicturesPage(const QList<QUrl>& pictures, const QString& remark) {
  QString body;
  for (const QUrl& picture : pictures) {
    body += "<img alt=\"\" src=\"" + picture.toString(QUrl::FullyEncoded).toHtmlEscaped() + "\">";
  }
  return Page(body + Notice(remark));
}

QByteArray EmbedPage(const QUrl& file, const QString& name) {
  return Page("<embed src=\"" + file.toString(QUrl::FullyEncoded).toHtmlEscaped() + "\" data-name=\"" +
              name.toHtmlEscaped() + "\">");
}

QByteArray TextPage(const QString& text, const QString& remark) {
  return Page("<pre>" + text.toHtmlEscaped() + "</pre>" + Notice(remark));
}

}  // namespace quorvantis
