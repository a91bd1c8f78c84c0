#pragma once

#include <wayvane/platform/View.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace wayvane::sim {

struct ClassInfo {
  std::string name;
  const ClassInfo* parent = nullptr;

  [[nodiscard]] bool isOrInherits(const ClassInfo& other) const
  {
    for (const ClassInfo* c = this; c; c = c->parent)
      if (c == &other) return true;
    return false;
  }

  [[nodiscard]] platform::ViewClass viewClass() const { return {this}; }
};

/// The classes of the program: AppKit's ancestry and what a test defines.
class ClassTable {
public:
  ClassTable();
  /// Answers the existing class when the name is known. `parent` must be known.
  const ClassInfo& define(const std::string& name, std::string_view parent);
  /// Null when the program has no class of that name.
  [[nodiscard]] const ClassInfo* find(std::string_view name) const;
  /// The class of an element: a known one, or one below `base` that `find` keeps secret.
  const ClassInfo& forElement(const std::string& name, std::string_view base);
  [[nodiscard]] bool isKind(const ClassInfo& info, platform::ViewKind kind) const;

private:
  std::map<std::string, std::unique_ptr<ClassInfo>, std::less<>> known_;
  std::map<std::string, std::unique_ptr<ClassInfo>, std::less<>> secret_;
};

} // namespace wayvane::sim
