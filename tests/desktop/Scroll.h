#pragma once

#include <tests/desktop/View.h>

namespace wayvane::sim {

/// The window of a scroll view onto its document.
class ClipView : public View {
public:
  ClipView(Desktop& desktop, const ClassInfo& info, const platform::Rect& frame, bool flipped);

protected:
  [[nodiscard]] platform::Point boundsOrigin() const override;

private:
  friend class ScrollView;
  platform::Point from_, to_;
  double begin_ = 0, duration_ = 0;
};

/// Ends a scroll that cannot be made: in a later turn, or at once for a jump.
void completeWithoutView(platform::ScrollAnimation animation);

struct ScrollRequest {
  platform::Point origin;
  double duration = 0;
};

/// A scroll view with a clip view and a document below it. Animated scrolls run on the virtual clock.
class ScrollView : public View, public platform::ScrollView {
public:
  ScrollView(Desktop& desktop, const ClassInfo& info, const ScrollViewOptions& options);
  /// Builds the clip view and the document; the desktop calls it once.
  void build(const ScrollViewOptions& options);

  /// The scrolled view, to add elements to; a scroll view without document must not be asked.
  [[nodiscard]] View& document();

  [[nodiscard]] View& clipView() const { return *clip_; }

  /// Replaces the document by a table that fills it and is as high as its rows.
  TableView& addTableDocument(const TableViewOptions& options);
  void removeDocument();

  /// As the user does it.
  void scrollTo(platform::Point origin) { scrollToOrigin(origin, {}); }

  [[nodiscard]] const std::vector<ScrollRequest>& requests() const { return requests_; }

  [[nodiscard]] platform::ViewHandle documentView() const override;
  [[nodiscard]] platform::Rect documentVisibleRect() const override;
  [[nodiscard]] platform::Rect documentBounds() const override;
  void scrollToOrigin(platform::Point origin, platform::ScrollAnimation animation) const override;

protected:
  [[nodiscard]] const void* role(platform::ViewKind kind) const override;
  void willDie() override;

private:
  void finishRunningScroll() const;
  ClipView* clip_ = nullptr;
  View* document_ = nullptr;
  mutable std::vector<ScrollRequest> requests_;
  mutable std::shared_ptr<std::function<void()>> running_;
};

} // namespace wayvane::sim
