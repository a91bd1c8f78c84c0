# Writes the strings tables into a source file. Run as: cmake -DOUTPUT=... -DTABLES=a;b -P embed.cmake
set(entries)
foreach(table IN LISTS TABLES)
  get_filename_component(folder "${table}" DIRECTORY)
  get_filename_component(language "${folder}" NAME_WE)
  file(READ "${table}" text)
  string(APPEND entries "    {\"${language}\", R\"wayvane(${text})wayvane\"},\n")
endforeach()
file(WRITE "${OUTPUT}" "#include <wayvane/platform/EmbeddedTexts.h>

#include <array>

namespace wayvane::platform {

std::span<const EmbeddedTable> embeddedTables()
{
  static constexpr auto tables = std::to_array<EmbeddedTable>({
${entries}  });
  return tables;
}

} // namespace wayvane::platform
")
