// SPDX-License-Identifier: MIT
#pragma once

#include "support/TemporaryFolder.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <zip.h>

namespace quorvantis::test {

/// Builds small packages with any content under any names.
class DocxBuilder {
 public:
  DocxBuilder() { parts_["_rels/.rels"] = Relations(Relation("r1", "officeDocument", "word/document.xml")); }

  DocxBuilder& Body(std::string_view xml) {
    parts_["word/document.xml"] = "<w:document><w:body>" + std::string(xml) + "</w:body></w:document>";
    return *this;
  }
  DocxBuilder& Part(const std::string& name, std::string_view bytes) {
    parts_[name] = bytes;
    return *this;
  }
  DocxBuilder& Relate(std::string_view id, std::string_view kind, std::string_view target) {
    relations_ += Relation(id, kind, target);
    return *this;
  }
  /// A picture called "rId<n>", which `PictureXml` displays.
  DocxBuilder& Picture(const std::string& id, std::string_view bytes) {
    return Part("word/media/" + id + ".png", bytes).Relate(id, "image", "media/" + id + ".png");
  }

  std::filesystem::path Write(const std::filesystem::path& file) const {
    auto parts = parts_;
    parts["word/_rels/document.xml.rels"] = Relations(relations_);
    int error = 0;
    zip_t* const archive = ::zip_open(file.c_str(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    for (const auto& [name, bytes] : parts) {
      ::zip_file_add(archive, name.c_str(), ::zip_source_buffer(archive, bytes.data(), bytes.size(), 0), 0);
    }
    ::zip_close(archive);
    return file;
  }

  static std::string PictureXml(const std::string& id) {
    return "<w:r><w:drawing><a:blip r:embed=\"" + id + "\"/></w:drawing></w:r>";
  }

 private:
  static std::string Relation(std::string_view id, std::string_view kind, std::string_view target) {
    return R"(<Relationship Id=")" + std::string(id) +
           R"(" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/)" +
           std::string(kind) + R"(" Target=")" + std::string(target) + R"("/>)";
  }
  static std::string Relations(const std::string& relations) {
    return "<Relationships>" + relations + "</Relationships>";
  }

  std::map<std::string, std::string> parts_;
  std::string relations_;
};

}  // namespace quorvantis::test
