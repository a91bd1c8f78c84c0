#include "Clues.h"

#include <array>

namespace roundtrip {

using wayvane::WVTargetDescriptor;

namespace {

using Target = WVTargetDescriptor;

Target toolbarItem(const Target& target)
{
  Target alone;
  alone.toolbarItemIdentifier = target.toolbarItemIdentifier;
  return alone;
}

Target tableRow(const Target& target)
{
  Target alone;
  if (target.tableRow < 0) return alone;
  alone.tableRow = target.tableRow;
  alone.tableColumn = target.tableColumn;
  alone.tableColumnIdentifier = target.tableColumnIdentifier;
  alone.tableIdentifier = target.tableIdentifier;
  alone.objectIdentifier = target.objectIdentifier;
  // The table is looked for by the head of the path; the tail sees to it that the path alone leads nowhere.
  if (target.hierarchyPath) alone.hierarchyPath = *target.hierarchyPath + "/no such class[0]";
  return alone;
}

Target identifier(const Target& target)
{
  Target alone;
  alone.accessibilityIdentifier = target.accessibilityIdentifier;
  return alone;
}

Target path(const Target& target)
{
  Target alone;
  alone.hierarchyPath = target.hierarchyPath;
  return alone;
}

Target binding(const Target& target)
{
  Target alone;
  alone.bindingInfo = target.bindingInfo;
  return alone;
}

// The class chooses among those that send the action, and leads further by itself: so it is left out.
Target action(const Target& target)
{
  Target alone;
  alone.action = target.action;
  return alone;
}

Target title(const Target& target)
{
  Target alone;
  alone.title = target.title;
  alone.titleLocalizations = target.titleLocalizations;
  return alone;
}

Target className(const Target& target)
{
  Target alone;
  alone.className = target.className;
  return alone;
}

struct Clue {
  const char* name;
  Target (*alone)(const Target&);
};

/// In the order of the search.
constexpr std::array kClues{Clue{"tool bar item", toolbarItem},
                            Clue{"table row", tableRow},
                            Clue{"identifier", identifier},
                            Clue{"place", path},
                            Clue{"binding", binding},
                            Clue{"action", action},
                            Clue{"title", title},
                            Clue{"class", className}};

} // namespace

std::string decidingClue(const Target& target, const wayvane::platform::WindowHandle& window)
{
  for (const Clue& clue : kClues)
    if (clue.alone(target).resolveInWindow(window)) return clue.name;
  return "none";
}

Target withoutIdentifiers(Target target)
{
  target.accessibilityIdentifier.reset();
  target.toolbarItemIdentifier.reset();
  target.tableIdentifier.reset();
  return target;
}

Target withoutPlace(Target target)
{
  target.hierarchyPath.reset();
  return target;
}

} // namespace roundtrip
