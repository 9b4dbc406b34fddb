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
  DocxBuilder() {
    parts_["[Content_Types].xml"] =
        R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
        R"(<Default Extension="xml" ContentType="application/xml"/>)"
        R"(<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>)"
        R"(<Default Extension="png" ContentType="image/png"/>)"
        R"(<Override PartName="/word/document.xml" ContentType=)"
        R"("application/vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml"/></Types>)";
    parts_["_rels/.rels"] = Relations(Relation("r1", "officeDocument", "word/document.xml"));
  }

  DocxBuilder& Body(std::string_view xml) {
    parts_["word/document.xml"] =
        R"(<w:document xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main" )"
        R"(xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships" )"
        R"(xmlns:m="http://schemas.openxmlformats.org/officeDocument/2006/math" xmlns:v="urn:schemas-microsoft-com:vml" )"
        R"(xmlns:o="urn:schemas-microsoft-com:office:office" )"
        R"(xmlns:wp="http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing" )"
        R"(xmlns:a="http://schemas.openxmlformats.org/drawingml/2006/main" )"
        R"(xmlns:pic="http://schemas.openxmlformats.org/drawingml/2006/picture" )"
        R"(xmlns:wps="http://schemas.microsoft.com/office/word/2010/wordprocessingShape" )"
        R"(xmlns:mc="http://schemas.openxmlformats.org/markup-compatibility/2006"><w:body>)" +
        std::string(xml) + "</w:body></w:document>";
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
    return R"(<w:r><w:drawing><wp:inline><wp:extent cx="360000" cy="360000"/><wp:docPr id="1" name="p"/><a:graphic>)"
           R"(<a:graphicData uri="http://schemas.openxmlformats.org/drawingml/2006/picture"><pic:pic><pic:nvPicPr>)"
           R"(<pic:cNvPr id="0" name="p"/><pic:cNvPicPr/></pic:nvPicPr><pic:blipFill><a:blip r:embed=")" +
           id +
           R"("/><a:stretch><a:fillRect/></a:stretch></pic:blipFill><pic:spPr><a:xfrm><a:off x="0" y="0"/>)"
           R"(<a:ext cx="360000" cy="360000"/></a:xfrm><a:prstGeom prst="rect"/></pic:spPr></pic:pic>)"
           R"(</a:graphicData></a:graphic></wp:inline></w:drawing></w:r>)";
  }

 private:
  static std::string Relation(std::string_view id, std::string_view kind, std::string_view target) {
    return R"(<Relationship Id=")" + std::string(id) +
           R"(" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/)" +
           std::string(kind) + R"(" Target=")" + std::string(target) + R"("/>)";
  }
  static std::string Relations(const std::string& relations) {
    return R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)" +
           relations + "</Relationships>";
  }

  std::map<std::string, std::string> parts_;
  std::string relations_;
};

}  // namespace quorvantis::test
