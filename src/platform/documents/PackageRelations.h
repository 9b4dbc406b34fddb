// SPDX-License-Identifier: MIT
#pragma once

#include "platform/documents/ZipPackage.h"

#include <map>
#include <string>
#include <string_view>

namespace quorvantis {

/// To which other parts of the package a part refers, and how.
class PackageRelations {
 public:
  /// Those of the part called `source`, or of the package itself where the name is empty. Without such a
  /// list, or with a damaged one, there are none.
  PackageRelations(const ZipPackage& package, const std::string& source);

  /// The name of the part; empty when there is none, or when it lies outside of the package.
  std::string TargetOf(std::string_view id) const;

  /// The same for the first relation whose type ends in "/" and `kind`.
  std::string TargetOfKind(std::string_view kind) const;

 private:
  struct Relation {
    std::string type;
    std::string target;
  };
  std::map<std::string, Relation, std::less<>> relations_;
};

}  // namespace quorvantis
