#include "RecordingTest.h"

#include <wayvane/recording/WVHoverHUD.h>

#include <QLineEdit>
#include <QTest>

namespace wayvane::qt::test {
namespace {

/// Elements whose texts nobody should have.
class Texts : public RecordingTest {
protected:
  [[nodiscard]] const WVTargetDescriptor& target() const { return recorder->guide()->steps.front().target; }

  /// Points at the button, clicks it and annotates the step, which becomes the only one.
  void record()
  {
    hover(*save);
    wait(20);
    click(*save);
    ASSERT_TRUE(annotate());
    ASSERT_EQ(recorder->guide()->steps.size(), 1U);
  }

  static inline const QString loneHigh = QString(QChar(0xD83D));
  static inline const QString loneLow = QString(QChar(0xDE00));
  static constexpr const char* kReplaced = "?";
};

TEST_F(Texts, AMegabyteOfTitleIsKeptWhole)
{
  const QString title(1 << 20, u'x');
  save->setText(title);
  record();
  EXPECT_LT(WVHoverHUD::shared().infoLabel()->stringValue().size(), 4000U);
  EXPECT_EQ(target().title, title.toStdString());
  EXPECT_TRUE(finishes());
}

TEST_F(Texts, AMegabyteInEveryPlaceIsKeptWhole)
{
  const QString much(1 << 20, u'\u00E9');
  save->setObjectName(much);
  save->setToolTip(much);
  save->setAccessibleName(much);
  window->setWindowTitle(much);
  record();
  EXPECT_EQ(target().accessibilityIdentifier, much.toStdString());
  EXPECT_EQ(target().toolTip, much.toStdString());
  EXPECT_EQ(target().windowTitle, much.toStdString());
  EXPECT_TRUE(finishes());
}

TEST_F(Texts, ANulInANameIsKept)
{
  save->setObjectName(QStringLiteral("sa") + QChar(u'\0') + QStringLiteral("ve"));
  record();
  EXPECT_EQ(target().accessibilityIdentifier, std::string("sa\0ve", 5));
  EXPECT_TRUE(finishes());
}

TEST_F(Texts, ANulInATitleIsKept)
{
  save->setText(QStringLiteral("Sa") + QChar(u'\0') + QStringLiteral("ve"));
  record();
  EXPECT_EQ(target().title, std::string("Sa\0ve", 5));
  EXPECT_TRUE(finishes());
}

TEST_F(Texts, HalvesOfCharactersAreReplaced)
{
  save->setText(QStringLiteral("a") + loneHigh + QStringLiteral("b") + loneLow);
  save->setObjectName(loneLow + QStringLiteral("name"));
  save->setToolTip(loneHigh);
  window->setWindowTitle(QStringLiteral("Win") + loneHigh);
  record();
  EXPECT_EQ(target().title, std::string("a") + kReplaced + "b" + kReplaced);
  EXPECT_EQ(target().accessibilityIdentifier, std::string(kReplaced) + "name");
  EXPECT_EQ(target().toolTip, kReplaced);
  EXPECT_EQ(target().windowTitle, std::string("Win") + kReplaced);
  EXPECT_TRUE(finishes());
}

TEST_F(Texts, ControlsQuotesAndDirectionMarksAreKept)
{
  const QString odd = QString::fromUtf8("a\"b\\c\u202Ed\te\u2028f\u007Fg{h}[i]%@ %lu");
  save->setText(odd);
  record();
  EXPECT_EQ(target().title, odd.toStdString());
  EXPECT_TRUE(finishes());
}

TEST_F(Texts, MarkupIsNoMarkup)
{
  const QString markup = QStringLiteral("<h1>Save</h1><img src='file:///nowhere'>");
  save->setText(markup);
  record();
  EXPECT_EQ(target().title, markup.toStdString());
  EXPECT_TRUE(finishes());
}

TEST_F(Texts, WhatTheAuthorPastesMayBeOddToo)
{
  click(*save);
  ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  popover()->findChild<QLineEdit*>(QStringLiteral("titleField"))->setText(QStringLiteral("T") + loneHigh);
  const QString much = QString(300000, u'm') + QStringLiteral("\"\\") + QChar(u'\u200F');
  auto* const message = popover()->findChild<QLineEdit*>(QStringLiteral("msgField"));
  message->setMaxLength(1 << 20);
  message->setText(much);
  wait(50);
  press(*popover(), Qt::Key_Return);
  ASSERT_TRUE(waitUntil([] { return !popover(); }));
  const WVStep& step = recorder->guide()->steps.front();
  EXPECT_EQ(step.title, std::string("T") + kReplaced);
  EXPECT_EQ(step.message, much.toStdString());
  EXPECT_TRUE(finishes());
}

} // namespace
} // namespace wayvane::qt::test
