#pragma once

#include <wayvane/platform/Localization.h>

#include <QByteArray>

#include <optional>

namespace wayvane::qt {

/// What a translation source file (".ts") says.
struct TranslationSourceFile {
  /// Source text to finished translation, both as they are shown: without mnemonics. Where two contexts
  /// translate the same source differently, the later one in the file counts.
  platform::StringTable translations;
  /// Source text to itself: the program's own language as a table.
  platform::StringTable sources;
  /// The bare code of the language the sources are written in; empty when the file does not say.
  std::string sourceLanguage;
};

/// Nothing when the file is not well-formed XML.
[[nodiscard]] std::optional<TranslationSourceFile> readTranslationSource(const QByteArray& bytes);

} // namespace wayvane::qt
