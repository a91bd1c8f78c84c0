#pragma once

#include <wayvane/platform/Registration.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace wayvane::qt {

/// Handlers that end with their tokens, also while one of them runs, and also after the list is gone.
template <class Signature>
class QtHandlerList {
public:
  using Handler = std::function<Signature>;

  [[nodiscard]] platform::Registration add(Handler handler)
  {
    const auto entry = std::make_shared<Entry>(Entry{std::move(handler), true});
    entries_->push_back(entry);
    return platform::Registration([entries = std::weak_ptr(entries_), weak = std::weak_ptr(entry)] {
      const std::shared_ptr<Entry> ended = weak.lock();
      if (ended) ended->isActive = false;
      if (const auto list = entries.lock()) std::erase(*list, ended);
    });
  }

  [[nodiscard]] bool isEmpty() const { return entries_->empty(); }

  /// Calls `visit` with each handler, the newest first, until it answers false.
  template <class Visit>
  void visitNewestFirst(Visit visit) const
  {
    const Entries now = *entries_;
    for (auto entry = now.rbegin(); entry != now.rend(); ++entry)
      if ((*entry)->isActive && !visit((*entry)->handler)) return;
  }

  template <class... Args>
  void callAll(const Args&... args) const
  {
    const Entries now = *entries_;
    for (const std::shared_ptr<Entry>& entry : now)
      if (entry->isActive && entry->handler) entry->handler(args...);
  }

private:
  struct Entry {
    Handler handler;
    bool isActive = true;
  };

  using Entries = std::vector<std::shared_ptr<Entry>>;

  std::shared_ptr<Entries> entries_ = std::make_shared<Entries>();
};

} // namespace wayvane::qt
