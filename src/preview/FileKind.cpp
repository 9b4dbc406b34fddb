// SPDX-License-Identifier: MIT
#include "preview/FileKind.h"

#include <QFile>
#include <QHash>

namespace quorvantis {
namespace {

struct Kind {
  FileKind kind = FileKind::Other;
  QByteArray type = "application/octet-stream";
};

const QHash<QString, Kind>& Kinds() {
  static const QHash<QString, Kind> kinds = [] {
    QHash<QString, Kind> all;
    for (const char* name :
         {"doc", "docx", "rtf", "odt", "ppt", "pptx", "odp", "xls", "xlsx", "ods", "pdf"}) {
      all[name] = {FileKind::Document, "text/html"};
    }
    for (const char* name :
         {"mpg", "mpeg", "dat", "asf", "avi", "wmv", "flv", "mov", "m4v", "mkv", "3gp", "rm"}) {
      all[name] = {FileKind::Media, "video/mp4"};
    }
    for (const char* name : {"wma", "m4a", "aac", "aiff", "amr", "opus", "flac", "au"}) {
      all[name] = {FileKind::Media, "audio/webm"};
    }
    all["mp4"] = {FileKind::Media, "video/mp4"};
    all["webm"] = {FileKind::Media, "video/webm"};
    all["mp3"] = {FileKind::Media, "audio/mpeg"};
    all["wav"] = {FileKind::Media, "audio/wav"};
    all["ogg"] = {FileKind::Media, "audio/ogg"};
    all["jpg"] = all["jpeg"] = {FileKind::Picture, "image/jpeg"};
    all["gif"] = {FileKind::Picture, "image/gif"};
    all["bmp"] = {FileKind::Picture, "image/bmp"};
    all["png"] = {FileKind::Picture, "image/png"};
    all["webp"] = {FileKind::Picture, "image/webp"};
    all["svg"] = {FileKind::Picture, "image/svg+xml"};
    all["htm"] = all["html"] = {FileKind::Page, "text/html"};
    all["txt"] = {FileKind::Text, "text/html"};
    all["swf"] = {FileKind::Flash, "application/x-shockwave-flash"};
    return all;
  }();
  return kinds;
}

}  // namespace

QString ExtensionOf(const std::filesystem::path& file) {
  const QString name = QFile::decodeName(file.filename().c_str());
  const qsizetype dot = name.lastIndexOf('.');
  return dot < 0 ? QString() : name.mid(dot + 1).toLower();
}

FileKind KindOf(const std::filesystem::path& file) {
  return Kinds().value(ExtensionOf(file)).kind;
}

QByteArray ContentTypeOf(const std::filesystem::path& file) {
  return Kinds().value(ExtensionOf(file)).type;
}

}  // namespace quorvantis
