#pragma once

#include <map>
#include <string>

namespace wayvane {

/// One text in several languages: bare language code ("en", "de", "Base") to text. UTF-8.
using LocalizationDictionary = std::map<std::string, std::string>;

} // namespace wayvane
