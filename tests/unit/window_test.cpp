// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The real window on the offscreen platform: clicks and keys sent to its
// widgets reach the calculator, and the widgets then show what it holds.
#include "app/catalogue.h"
#include "fakeplatform.h"
#include "ui/menuwindow.h"

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace zel::test {
namespace {

const QColor RowColour(0, 69, 125);
const QColor InputColour(85, 142, 191);
const QColor Amber(255, 190, 0);

class WindowTest : public ::testing::Test {
  protected:
    void SetUp() override {
        // Our dialogs go through the fake; any real modal dialog is a fault.
        m_watch.setInterval(20);
        QObject::connect(&m_watch, &QTimer::timeout, [this] {
            if (QWidget* modal = QApplication::activeModalWidget()) {
                m_unexpectedDialog = true;
                modal->close();
            }
        });
        m_watch.start();
        calc.menu.Form_Activate();
    }
    void TearDown() override { EXPECT_FALSE(m_unexpectedDialog) << "a modal dialog opened"; }

    void click(QWidget* widget, QPoint at = {}) {
        QTest::mouseClick(widget, Qt::LeftButton, {}, at.isNull() ? widget->rect().center() : at);
    }
    void type(const char* text) { QTest::keyClicks(&window, QString::fromLatin1(text)); }

    Calculator calc;
    MenuWindow window{calc.menu};

  private:
    QTimer m_watch;
    bool m_unexpectedDialog = false;
};

TEST_F(WindowTest, MenuFaceShowsEveryPageWithItsFunctionKey) {
    EXPECT_FALSE(window.pageFace()->isVisibleTo(&window));
    EXPECT_EQ(window.pageButton(1)->caption(), "Weight");
    EXPECT_EQ(window.pageButton(13)->caption(), "Mach - AS");
    EXPECT_EQ(window.pageButton(1)->cornerCaption(), "F1");
    EXPECT_EQ(window.pageButton(14)->cornerCaption(), "F11");
    EXPECT_EQ(window.pageButton(18)->cornerCaption(), "F12");
    EXPECT_EQ(window.pageButton(17)->cornerCaption(), "");
    EXPECT_EQ(window.pageButton(5)->textColor(), QColor(224, 224, 224));
    EXPECT_EQ(window.title()->caption(), "zelFLIGHTAB");
}

TEST_F(WindowTest, TypingAndClickingConvertsAndMarksTheInputRow) {
    click(window.pageButton(1));
    EXPECT_TRUE(window.pageFace()->isVisibleTo(&window));
    EXPECT_EQ(window.title()->caption(), "Weight");
    type("165");
    EXPECT_EQ(window.display()->caption(), "165.");
    EXPECT_EQ(window.display()->pointSize(), 18);
    click(window.valueCell(2));
    EXPECT_EQ(window.valueCell(1)->caption(), "74.83");
    EXPECT_EQ(window.valueCell(2)->textColor(), InputColour);
    EXPECT_EQ(window.unitCell(2)->textColor(), InputColour);
    EXPECT_EQ(window.valueCell(1)->textColor(), RowColour);
    EXPECT_EQ(window.valueCell(8)->pointSize(), 12); // "74,829,931.97": 13 characters
    click(window.digitsKey());
    EXPECT_EQ(window.digitsKey()->caption(), "0....");
    EXPECT_EQ(window.valueCell(1)->caption(), "74.8299319727891");
    EXPECT_EQ(window.valueCell(1)->pointSize(), 9);
}

TEST_F(WindowTest, KeysLightUpAndTheDivideKeyHasTwoFaces) {
    click(window.pageButton(1));
    type("7");
    const QWidget* divide = window.operatorKey(4);
    click(window.operatorKey(4), QPoint(divide->width() / 2, 2));
    EXPECT_EQ(window.operatorKey(4)->textColor(), Amber);
    type("2");
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_EQ(window.display()->caption(), "3.5");
    EXPECT_EQ(window.operatorKey(4)->textColor(), QColor(Qt::white));

    type("7");
    click(window.operatorKey(5), QPoint(divide->width() / 2, divide->height() - 2));
    EXPECT_EQ(calc.menu.scratchPad().pendingOperator(), 5);
    click(window.memoryKey(1));
    EXPECT_EQ(window.memoryKey(0)->textColor(), Amber);
}

TEST_F(WindowTest, PagesShowAndHideTheirPanels) {
    QTest::keyClick(&window, Qt::Key_F11);
    EXPECT_EQ(window.title()->caption(), "Snowtam");
    EXPECT_FALSE(window.memoryPanel()->isVisibleTo(&window));
    EXPECT_FALSE(window.operatorPanel()->isVisibleTo(&window));
    EXPECT_FALSE(window.digitsPanel()->isVisibleTo(&window));
    type("59450295");
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_EQ(window.valueCell(1)->caption(), "09R");
    EXPECT_EQ(window.valueCell(7)->caption(), "0.40 - 1.00");

    click(window.menuButton());
    EXPECT_FALSE(window.pageFace()->isVisibleTo(&window));
    click(window.pageButton(page::Currency));
    EXPECT_TRUE(window.memoryPanel()->isVisibleTo(&window));
    EXPECT_EQ(window.memoryKey(0)->caption(), "Rates");
    EXPECT_EQ(window.memoryKey(1)->caption(), "Set");
    EXPECT_EQ(window.memoryKey(2)->caption(), "i");
}

TEST_F(WindowTest, RefusalsAndMessagesReachThePlatform) {
    click(window.pageButton(page::Speed));
    type("13");
    click(window.valueCell(7));
    EXPECT_EQ(calc.lastEvent(), "exclamation Speed: Invalid input (range 1 to 12)");
    QTest::keyClick(&window, Qt::Key_Escape);
    click(window.menuButton());
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(calc.lastEvent(), "quit");
}

} // namespace
} // namespace zel::test

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
