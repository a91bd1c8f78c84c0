#include <tests/fuzz/Mutator.h>

namespace wayvane::fuzz {

std::string Mutator::next()
{
  std::string text = any(corpus_);
  for (std::size_t damages = 1 + below(8); damages > 0; --damages)
    damage(text);
  return text;
}

void Mutator::damage(std::string& text)
{
  const std::size_t at = below(text.size() + 1);
  const std::size_t length = below(16);
  switch (below(8)) {
  case 0:
    text.insert(at, any(tokens_));
    break;
  case 1:
    text.replace(at, std::min(length, text.size() - at), any(tokens_));
    break;
  case 2:
    text.erase(at, length);
    break;
  case 3:
    text.insert(at, 1, static_cast<char>(below(256)));
    break;
  case 4:
    if (at < text.size()) text[at] = static_cast<char>(text[at] ^ (1 << below(8)));
    break;
  case 5:
    text.insert(at, text.substr(below(text.size() + 1), 4 * length));
    break;
  case 6: {
    const std::string& other = any(corpus_);
    text.insert(at, other.substr(below(other.size() + 1), 4 * length));
    break;
  }
  default:
    if (below(8) == 0) text.resize(at);
  }
}

} // namespace wayvane::fuzz
