#include "ShellTest.h"

#include <wayvane/overlay/WVBubbleView.h>
#include <wayvane/overlay/WVCircleView.h>
#include <wayvane/overlay/WVSpotlightView.h>
#include <wayvane/platform/qt/QtOverlayPanel.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

namespace wayvane::qt::test {
namespace {

using platform::Rect;

/// A small program's window with everything that a tour puts over it.
class OverlayPicture : public ShellTest {
protected:
  OverlayPicture()
  {
    window->resize(640, 400);
    button->setGeometry(60, 60, 120, 32);
    for (int i = 0; i < 6; ++i) {
      auto* field = new QLineEdit(QStringLiteral("Field %1").arg(i), window.get());
      field->setGeometry(330, 40 + 50 * i, 200, 30);
      field->show();
      auto* box = new QCheckBox(QStringLiteral("Option %1").arg(i), window.get());
      box->setGeometry(60, 200 + 30 * i, 200, 24);
      box->show();
    }
    panel = wayvane().panels.makeOverlayPanel(handle()->frame(), 10);
    panel->attachToWindow(handle());
    panel->orderFront();
    const platform::Rect highlight = Rect{60, 400 - 92, 120, 32}.grownBy(4);
    addSpotlight(highlight);
    addRing(highlight);
    addBubble();
  }

  ~OverlayPicture() override { panel.reset(); }

  void addSpotlight(const Rect& highlight)
  {
    spotlight = std::make_shared<WVSpotlightView>(panel->contentView().bounds());
    spotlight->setDimAlpha(0.4);
    spotlight->animateToRect(highlight);
    panel->contentView().addSubview(spotlight);
  }

  void addRing(const Rect& highlight)
  {
    ring = std::make_shared<WVCircleView>(Rect{});
    panel->contentView().addSubview(ring);
    ring->showAroundRect(highlight);
  }

  void addBubble()
  {
    WVStep step;
    step.title = "Keep your note";
    step.message = "Press this button to keep what you wrote. A second line shows how words wrap.";
    bubble = std::make_shared<WVBubbleView>(Rect{0, 0, 280, 100});
    bubble->setPointerDirection(WVBubblePointerUp);
    bubble->setPointerTip({120, 324});
    bubble->configureWithStep(step, 1, 5);
    bubble->setFrame({20, 292 - bubble->frame().height, 280, bubble->frame().height});
    panel->contentView().addSubview(bubble);
  }

  void useDarkColours()
  {
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(45, 45, 45));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Button, QColor(60, 60, 60));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
      dark.setColor(role, Qt::white);
    window->setPalette(dark);
  }

  [[nodiscard]] QImage picture(double scale) const
  {
    spin(60);
    QImage image((QSizeF(window->size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    window->render(&image);
    return image;
  }

  /// The colour at a point of the window, y downward.
  [[nodiscard]] static QColor at(const QImage& image, double x, double y)
  {
    const double scale = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale));
  }

  std::unique_ptr<platform::OverlayPanel> panel;
  std::shared_ptr<WVSpotlightView> spotlight;
  std::shared_ptr<WVCircleView> ring;
  std::shared_ptr<WVBubbleView> bubble;
};

TEST_F(OverlayPicture, ShowsDimHoleRingAndBubbleAtBothScales)
{
  for (const double scale : {1.0, 2.0}) {
    const QImage image = picture(scale);
    keepPicture(image, QStringLiteral("overlay-light-%1x").arg(scale));
    const QColor plain = QApplication::palette().color(QPalette::Window);
    const QColor dimmed = at(image, 300, 20);
    EXPECT_NEAR(dimmed.lightness(), plain.lightness() * 0.6, 2);
    EXPECT_GT(at(image, 60, 58).lightness(), plain.lightness() - 5) << "the hole is not dimmed";
    EXPECT_GT(at(image, 56, 76).blue(), 200) << "the ring is blue";
    EXPECT_LT(at(image, 56, 76).red(), 60);
    EXPECT_EQ(at(image, 160, 130), QColor(Qt::white)) << "the bubble is light";
  }
}

TEST_F(OverlayPicture, FollowsADarkPalette)
{
  useDarkColours();
  for (const double scale : {1.0, 2.0}) {
    const QImage image = picture(scale);
    keepPicture(image, QStringLiteral("overlay-dark-%1x").arg(scale));
    EXPECT_EQ(at(image, 160, 130), QColor(0x1E, 0x1E, 0x1E));
  }
}

TEST_F(OverlayPicture, LooksTheSamePaintedInPartsByAnAnimation)
{
  ring->stopAnimating();
  spin(600);
  spotlight->animateToRect({200, 100, 150, 90});
  spin(700);
  const QImage parts = window->grab().toImage();
  window->repaint();
  QImage whole(window->size(), QImage::Format_ARGB32_Premultiplied);
  window->render(&whole);
  keepPicture(parts, QStringLiteral("overlay-moved"));
  EXPECT_EQ(parts.convertToFormat(QImage::Format_RGB32), whole.convertToFormat(QImage::Format_RGB32));
}

} // namespace
} // namespace wayvane::qt::test
