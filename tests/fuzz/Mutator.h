#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace wayvane::fuzz {

/// Damages texts in the ways files get damaged, the same way in every run.
class Mutator {
public:
  Mutator(std::vector<std::string> corpus, std::vector<std::string> tokens, std::uint64_t seed)
    : corpus_(std::move(corpus))
    , tokens_(std::move(tokens))
    , random_(seed)
  {}

  /// One of the corpus with one to eight damages.
  [[nodiscard]] std::string next();

private:
  [[nodiscard]] std::size_t below(std::size_t limit) { return limit == 0 ? 0 : random_() % limit; }

  [[nodiscard]] const std::string& any(const std::vector<std::string>& of) { return of[below(of.size())]; }

  void damage(std::string& text);

  std::vector<std::string> corpus_;
  std::vector<std::string> tokens_;
  std::mt19937_64 random_;
};

} // namespace wayvane::fuzz
