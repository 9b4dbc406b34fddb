// SPDX-License-Identifier: MIT
#pragma once

#include "platform/documents/ZipPackage.h"

#include <map>
#include <string>
#include <string_view>

namespace quorvantis {

/// The other parts of the package that a part refers to, and how.
class PackageRelations {
 public:
  /// The relations of the part `source`, or of the package itself if the name is empty. None if the list is
  /// missing or damaged.
  PackageRelations(const ZipPackage& package, const std::string& source);

  /// The name of the part; empty if there is none, or if it is outside the package.
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
