// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/qti/QtiPackage.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// A text of a test that stands in front of an item.
struct QtiPassage {
  std::string part;  ///< from which its addresses count
  pugi::xml_node element;
};

/// What a test says of an item.
struct QtiItemInTest {
  std::string name;  ///< of its part in the package
  std::optional<double> weight;
  std::vector<QtiPassage> passages{};
};

/// Reads the tests of a package: which items they have, in which order. It owns what passages refer to.
class QtiTest {
 public:
  QtiTest(QtiPackage& package, ReadingTools& tools) : package_(package), tools_(tools) {}

  /// Adds the items of a test, with those of sections in parts of their own.
  void Read(const std::string& name);

  const std::string& Title() const { return title_; }
  std::vector<QtiItemInTest>& Items() { return items_; }

  /// Texts behind which no item stands.
  const std::vector<QtiPassage>& Left() const { return passages_; }

 private:
  struct OpenPart {
    std::string name;
    std::vector<pugi::xml_node> elements;
    std::size_t next = 0;
  };

  bool Open(const std::string& name, std::vector<OpenPart>& parts);
  void TakeElement(pugi::xml_node element, const std::string& part);
  void AddItem(pugi::xml_node reference, const std::string& part);

  QtiPackage& package_;
  ReadingTools& tools_;
  std::string title_;
  std::vector<std::unique_ptr<pugi::xml_document>> documents_;
  std::vector<QtiItemInTest> items_;
  std::vector<QtiPassage> passages_;
};

}  // namespace quorvantis
