#pragma once

#include <wayvane/platform/Registration.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace wayvane::sim {

/// Handlers in the order they were registered. A registration may end at any moment: while handlers run, or
/// after this list is gone.
template <class Signature>
class Observers {
public:
  using Handler = std::function<Signature>;
  using Entry = std::shared_ptr<const Handler>;

  platform::Registration add(Handler handler)
  {
    auto entry = std::make_shared<const Handler>(std::move(handler));
    entries_->push_back(entry);
    return platform::Registration([entry, list = std::weak_ptr(entries_)] {
      if (const auto alive = list.lock()) std::erase(*alive, entry);
    });
  }

  /// Those registered at the start of the call; one that ends meanwhile is left out.
  template <class... Args>
  void notify(const Args&... args) const
  {
    const auto list = entries_;
    for (const Entry& entry : std::vector<Entry>(*list))
      if (contains(*list, entry)) (*entry)(args...);
  }

  /// Newest first, until `visitor` answers false.
  void visitNewestFirst(const std::function<bool(const Handler&)>& visitor) const
  {
    const auto list = entries_;
    const std::vector<Entry> now(*list);
    for (auto entry = now.rbegin(); entry != now.rend(); ++entry)
      if (contains(*list, *entry) && !visitor(**entry)) return;
  }

  [[nodiscard]] std::size_t count() const { return entries_->size(); }

private:
  static bool contains(const std::vector<Entry>& list, const Entry& entry)
  {
    return std::find(list.begin(), list.end(), entry) != list.end();
  }

  std::shared_ptr<std::vector<Entry>> entries_ = std::make_shared<std::vector<Entry>>();
};

} // namespace wayvane::sim
