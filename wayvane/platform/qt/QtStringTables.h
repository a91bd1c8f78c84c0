#pragma once

#include <wayvane/platform/Localization.h>

#include <QByteArray>

namespace wayvane::qt {

/// A table of a ".strings" file: lines `"key" = "text";` with comments, UTF-8 or UTF-16. Nothing when it is
/// not one; half a table is none.
[[nodiscard]] std::optional<platform::StringTable> stringTableFromStrings(const QByteArray& bytes);

/// The finished texts of a translation source file (".ts"), by their source texts. Nothing when it is not
/// well-formed.
[[nodiscard]] std::optional<platform::StringTable> stringTableFromTranslationSource(const QByteArray& bytes);

} // namespace wayvane::qt
