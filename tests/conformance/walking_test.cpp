#include <tests/conformance/Conformance.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> allocations = 0;

} // namespace

void* operator new(std::size_t size)
{
  ++allocations;
  if (void* memory = std::malloc(size > 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
  ++allocations;
  return std::malloc(size > 0 ? size : 1);
}

void operator delete(void* memory) noexcept
{
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
  std::free(memory);
}

namespace wayvane::conformance {

namespace {

/// Walks a window as a search for a target does.
struct Search {
  const SearchText& wanted;
  int visited = 0;

  bool operator()(const platform::View& view)
  {
    ++visited;
    const bool matches = view.accessibilityIdentifierEquals(wanted) || view.sendsAction(wanted) ||
                         view.isTitled(wanted) || view.observedKeyPathEquals("value", wanted) ||
                         view.classNameEquals("NoSuchClassAnywhere") || view.isKind(ViewKind::TokenField);
    return !matches && view.visitSubviews(*this);
  }
};

class Walking : public Conformance {};

TEST_F(Walking, ASearchThroughAWindowAllocatesNothing)
{
  auto inside = stage().addGroupBox(window(), {.frame = {0, 0, 300, 280}}, "Weather");
  for (int i = 0; i < 10; ++i)
    stage().addButton(window(),
                      {.frame = {10, 10.0 + 20 * i, 100, 18}, .inside = inside, .identifier = "button"},
                      {.title = "Plan"});
  const SearchText wanted("no such identifier");
  // What is found out once per class may be kept; that costs the first walk something.
  Search{wanted}(*window()->frameView());

  const auto root = window()->frameView();
  Search search{wanted};
  const long before = allocations;
  search(*root);
  EXPECT_EQ(allocations - before, 0);
  EXPECT_GT(search.visited, 10);
}

TEST_F(Walking, AHandleLeadsToWhatItsElementGotLater)
{
  using platform::Feature;
  const auto box = stage().addGroupBox(window(), {.frame = {0, 0, 300, 280}}, "Weather");
  const auto button =
      stage().addButton(window(), {.frame = {10, 10, 90, 24}, .inside = box}, {.title = "Plan"});
  EXPECT_TRUE(box->mayHave({Feature::Subviews}));
  bool found = false;
  box->visitSubviews([&](const platform::View& view) {
    found = found || view.isSame(*button);
    return true;
  });
  EXPECT_TRUE(found);
}

} // namespace

} // namespace wayvane::conformance
