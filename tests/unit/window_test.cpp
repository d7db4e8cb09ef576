// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 zelFLIGHTAB developers
// The real window on the offscreen platform: clicks and keys sent to its
// widgets reach the calculator, and the widgets then show what it holds.
#include "balance/profile.h"
#include "fakeplatform.h"
#include "ui/chartpainter.h"
#include "ui/loadingpanel.h"
#include "ui/menuwindow.h"
#include "ui/qtinteraction.h"
#include "ui/windowstyle.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cmath>
#include <gtest/gtest.h>

namespace zel::test {
namespace {

void click(QWidget* widget, QPoint at = {}) {
    QTest::mouseClick(widget, Qt::LeftButton, {}, at.isNull() ? widget->rect().center() : at);
}

/// A window whose dialogs go through the fake, shown and active; any real
/// modal dialog is a fault.
class WindowTest : public ::testing::Test {
  protected:
    void SetUp() override {
        m_watch.setInterval(20);
        QObject::connect(&m_watch, &QTimer::timeout, [this] {
            if (QWidget* modal = QApplication::activeModalWidget()) {
                m_unexpectedDialog = true;
                modal->close();
            }
        });
        m_watch.start();
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    void TearDown() override { EXPECT_FALSE(m_unexpectedDialog) << "a modal dialog opened"; }

    void type(const char* text) { QTest::keyClicks(&window, QString::fromLatin1(text)); }
    void key(Qt::Key k, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), k, modifiers);
    }

    QTemporaryDir folder; // what the window remembers goes here
    QString memory = folder.path() + "/window.ini";
    Calculator calc;
    MenuWindow window{calc.menu, nullptr, memory};

  private:
    QTimer m_watch;
    bool m_unexpectedDialog = false;
};

TEST_F(WindowTest, TheWeightAndBalanceSheetTakesTypedNumbersInItsCells) {
    click(window.pageButton(28));
    LoadingPanel* panel = window.loadingPanel();
    ASSERT_NE(panel, nullptr);
    EXPECT_TRUE(window.unitCell(1)->isHidden() || !window.unitCell(1)->isVisible());
    ASSERT_TRUE(panel->importFile(QStringLiteral(ZEL_TEST_DATA "/aircraft/skyhawk.json")));
    auto* aircraft = panel->findChild<QComboBox*>(QStringLiteral("aircraft"));
    ASSERT_NE(aircraft, nullptr);
    EXPECT_EQ(aircraft->currentText(), "D-EZEL");
    auto cell = [&](int entry) {
        return panel->findChild<QPushButton*>(QStringLiteral("entry-%1").arg(entry));
    };
    type("340");
    click(cell(3)); // front seats
    type("40");
    click(cell(7)); // fuel, in US gallons
    EXPECT_EQ(cell(3)->text(), "340.00");
    EXPECT_EQ(cell(8)->text(), "240.00");
    EXPECT_EQ(cell(3)->accessibleName(), "Front seats weight - lb");
    // The keyboard: Tab reaches the cells and the chart, Space takes the number.
    type("170");
    cell(4)->setFocus(Qt::TabFocusReason);
    key(Qt::Key_Space);
    EXPECT_EQ(cell(4)->text(), "170.00");
    auto* chart = panel->findChild<ChartWidget*>(QStringLiteral("chart"));
    ASSERT_NE(chart, nullptr);
    EXPECT_TRUE(chart->accessibleDescription().contains("Takeoff 2,413.00 lb at"));
    bool reached = false;
    for (int step = 0; step < 40 && !reached; ++step) {
        key(Qt::Key_Tab);
        reached = QApplication::focusWidget() == chart;
    }
    EXPECT_TRUE(reached) << "Tab reaches the chart";
    // Export and print: the profile as a file, the sheet on a page.
    const QString exported = folder.path() + "/D-EZEL.json";
    ASSERT_TRUE(panel->exportFile(exported));
    QFile file(exported);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(std::holds_alternative<balance::Aircraft>(
        balance::readProfile(file.readAll().toStdString())));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    const QByteArray shots = qgetenv("ZEL_SCREENSHOTS");
    printer.setOutputFileName(shots.isEmpty() ? folder.path() + "/sheet.pdf"
                                              : QString::fromLocal8Bit(shots) + "/sheet.pdf");
    panel->print(printer);
    EXPECT_GT(QFileInfo(printer.outputFileName()).size(), 2000);
    if (!shots.isEmpty()) {
        window.grab().save(QString::fromLocal8Bit(shots) + "/window-weight-balance.png");
    }
}

TEST_F(WindowTest, TheWindowGrowsOnTheSheetAndComesBackToTheCalculatorsSize) {
    const QSize calculator = window.size();
    EXPECT_EQ(window.maximumSize(), calculator); // the calculator keeps its size
    click(window.pageButton(28));
    EXPECT_GT(window.maximumWidth(), 2000);
    LoadingPanel* panel = window.loadingPanel();
    ASSERT_NE(panel, nullptr);
    const QSize before = panel->size();
    window.resize(1100, 760);
    QApplication::processEvents();
    // The sheet takes the room the window grew by.
    EXPECT_EQ(panel->size(), before + QSize(1100, 760) - calculator);
    click(window.menuButton());
    QApplication::processEvents();
    EXPECT_EQ(window.size(), calculator);
    EXPECT_EQ(window.maximumSize(), calculator);
}

TEST_F(WindowTest, TheLoadingSheetShowsEveryDigitAndScrollsOnlyWhenItMust) {
    // The shipped metric profile, whose moments in kg-mm run to six figures
    // and more: a real loading (empty 550 kg at 440 mm, 170 kg in front, 20 kg
    // of baggage, 80 L of fuel and 30 L burnt) fits the window; 550 kg in
    // every cell gives seven figures and scrolls sideways, hiding nothing.
    struct Case {
        std::vector<std::pair<int, const char*>> typed; // entry, number
        bool fits;
    };
    const Case cases[] = {
        {{{1, "550"}, {2, "440"}, {3, "170"}, {6, "20"}, {7, "80"}, {9, "30"}}, true},
        {{{1, "550"}, {2, "550"}, {3, "550"}, {4, "550"}, {5, "550"}, {6, "550"}, {7, "550"}},
         false},
    };
    for (const Case& c : cases) {
        click(window.pageButton(28));
        LoadingPanel* panel = window.loadingPanel();
        ASSERT_NE(panel, nullptr);
        for (const auto& [entry, number] : c.typed) {
            auto* cell = panel->findChild<QPushButton*>(QStringLiteral("entry-%1").arg(entry));
            ASSERT_NE(cell, nullptr) << entry;
            type(number);
            click(cell);
        }
        QApplication::processEvents();
        QWidget* sheet = panel->widget();
        ASSERT_NE(sheet, nullptr);
        const bool fits = sheet->width() <= panel->viewport()->width();
        EXPECT_EQ(fits, c.fits) << sheet->width();
        EXPECT_TRUE(fits || (panel->horizontalScrollBar()->isVisible() &&
                             panel->viewport()->width() + panel->horizontalScrollBar()->maximum() >=
                                 sheet->width()))
            << "part of the sheet cannot be scrolled to";
        int figures = 0;
        for (const QLabel* label : sheet->findChildren<QLabel*>()) {
            if (label->isVisible() && !label->wordWrap() && label->text().contains(QChar('0'))) {
                ++figures;
                EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()),
                          label->contentsRect().width())
                    << label->text().toStdString();
            }
        }
        EXPECT_GT(figures, 4);
        click(window.menuButton());
    }
}

TEST_F(WindowTest, ClicksAndKeysReachTheCalculator) {
    EXPECT_EQ(window.pageButton(17)->cornerCaption(), "F12"); // the key that opens Wind Comp
    EXPECT_EQ(window.pageButton(18)->cornerCaption(), "");    // Currency has none
    click(window.pageButton(1));
    type("7");
    const QWidget* divide = window.operatorKey(4);
    click(window.operatorKey(4), QPoint(divide->width() / 2, 2)); // the upper face divides
    type("2");
    key(Qt::Key_Return);
    EXPECT_EQ(window.display()->caption(), "3.5");
    click(window.operatorKey(5), QPoint(divide->width() / 2, divide->height() - 2));
    EXPECT_EQ(calc.menu.scratchPad().pendingOperator(),
              Operator::DivideLower); // the lower face only lights up
    type("165");
    click(window.unitCell(2)); // the whole row takes the click
    EXPECT_EQ(window.valueCell(1)->caption(), "74.83");
    for (int row = 1; row <= 8; ++row) {
        EXPECT_EQ(window.inputBand(row)->isVisibleTo(&window), row == 2) << row;
    }
    click(window.digitsKey());
    EXPECT_EQ(window.valueCell(1)->caption(), "74.8299319727891");
    key(Qt::Key_F11);
    EXPECT_FALSE(window.memoryPanel()->isVisibleTo(&window));
    EXPECT_FALSE(window.operatorPanel()->isVisibleTo(&window));
    type("59450295");
    key(Qt::Key_Return);
    EXPECT_EQ(window.valueCell(7)->caption(), "0.40 - 1.00");
    key(Qt::Key_F1); // the F-keys work from a page too, and the code stays behind
    EXPECT_EQ(window.title()->caption(), "Weight");
    EXPECT_EQ(window.display()->caption(), "0.");
    EXPECT_TRUE(window.memoryPanel()->isVisibleTo(&window));
}

TEST_F(WindowTest, EverythingCanBeReachedFromTheKeyboard) {
    key(Qt::Key_Down); // the focus appears on Weight, then moves a line down
    EXPECT_EQ(QApplication::focusWidget(), window.pageButton(1));
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), window.pageButton(6));
    key(Qt::Key_Backtab);
    key(Qt::Key_Return); // opens the focused page: Distance
    EXPECT_EQ(window.title()->caption(), "Distance");
    type("1");
    key(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(window.valueCell(3)->caption(), "1.85");
    key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), window.menuButton());
    key(Qt::Key_Tab);
    key(Qt::Key_Space); // the digits key
    EXPECT_EQ(window.valueCell(3)->caption(), "1.851999692");
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_FALSE(window.pageFace()->isVisibleTo(&window));
    EXPECT_EQ(QApplication::focusWidget(), window.pageButton(5));
    key(Qt::Key_F1);
    key(Qt::Key_M, Qt::AltModifier);
    EXPECT_FALSE(window.pageFace()->isVisibleTo(&window));
}

TEST_F(WindowTest, TheDisplayShowsTheEntryOnReturn) {
    key(Qt::Key_F1);
    type("75");
    QEvent activate(QEvent::WindowActivate);
    QApplication::sendEvent(&window, &activate);
    EXPECT_EQ(window.display()->caption(), "75.");
}

TEST_F(WindowTest, NoDigitIsCutOff) {
    key(Qt::Key_F1);
    type("99999999999999");
    key(Qt::Key_3, Qt::ControlModifier);
    const ZelFrame* pounds = window.valueCell(2);
    EXPECT_EQ(pounds->caption(), "220,499,999,999,998,000.00");
    const ZelFrame::Fit fit = pounds->fit();
    EXPECT_TRUE(fit.shortened);
    EXPECT_TRUE(fit.text.startsWith("2.2") && fit.text.endsWith("E+17")) << fit.text.toStdString();
    EXPECT_EQ(pounds->toolTip(), pounds->caption()); // the whole caption
    EXPECT_EQ(window.valueCell(3)->toolTip().toStdString(), "metric ton - T (Ctrl+3)");
    EXPECT_FALSE(window.valueCell(3)->fit().shortened);
}

TEST_F(WindowTest, CopiesAndPastesThroughTheClipboard) {
    QClipboard* clipboard = QApplication::clipboard();
    key(Qt::Key_F1);
    type("1234.5");
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard->text(), "1234.5");
    key(Qt::Key_2, Qt::ControlModifier);
    key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(
        clipboard->text().startsWith("Weight\nkilogram - kg\t559.86\npound - lbs\t1234.50\n"))
        << clipboard->text().toStdString();
    window.rowMenu(1)->actions().at(0)->trigger(); // "Copy value"
    EXPECT_EQ(clipboard->text(), "559.86");
    clipboard->setText("1.234,5");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(window.display()->caption(), "1,234.5");
    clipboard->setText("3.4.5");
    key(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_TRUE(calc.lastEvent().ends_with("Not a number: 3.4.5"));
    EXPECT_EQ(window.display()->caption(), "1,234.5");
    key(Qt::Key_F11);
    clipboard->setText("Runway state\r\n88290140\r\n");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(window.display()->caption(), "88290140");
}

TEST_F(WindowTest, APlaceIsTypedInItsFieldAndThePageSaysWhatItsCoursesCannot) {
    auto* field = window.findChild<QLineEdit*>();
    ASSERT_NE(field, nullptr);
    key(Qt::Key_F1);
    EXPECT_FALSE(field->isVisible()); // Weight takes no places
    ASSERT_TRUE(calc.menu.openPage("great circle"));
    window.render();
    ASSERT_TRUE(field->isVisible());
    EXPECT_EQ(field->accessibleName(), "Coordinates");
    click(field);
    QTest::keyClicks(field, QStringLiteral("N40 38 23.74 W073 46 43.29"));
    EXPECT_EQ(window.display()->caption(), "0."); // the field's keys are the field's own
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(field->text().isEmpty());
    click(field);
    QTest::keyClicks(field, QStringLiteral("512839N0002741W"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(window.valueCell(1)->caption(), "N 40°38.40′");
    EXPECT_EQ(window.valueCell(4)->caption(), "W 000°27.68′");
    EXPECT_EQ(window.valueCell(5)->caption(), "2,999.09");
    // What cannot be read is said, and stays in the field to correct.
    click(field);
    QTest::keyClicks(field, QStringLiteral("51 28"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(calc.lastEvent().starts_with("exclamation Great Circle: Not a coordinate: 51 28"));
    EXPECT_EQ(field->text(), "51 28");
    // Antipodes: no course, and a note that says why.
    calc.menu.clear();
    calc.menu.clear();
    field->setText(QStringLiteral("40, 10"));
    QTest::keyClick(field, Qt::Key_Return);
    field->setText(QStringLiteral("-40, -170"));
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_EQ(window.valueCell(7)->caption(), "");
    const auto labels = window.findChildren<QLabel*>();
    const bool said = std::any_of(labels.begin(), labels.end(), [](QLabel* label) {
        return label->isVisible() && label->text().startsWith("Antipodal: no single shortest way");
    });
    EXPECT_TRUE(said);
    // A refused time says why under the rows.
    key(Qt::Key_Escape);
    ASSERT_TRUE(calc.menu.openPage("track time"));
    window.render();
    type("1:75");
    key(Qt::Key_3, Qt::ControlModifier);
    const auto shown = window.findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(shown.begin(), shown.end(), [](QLabel* label) {
        return label->isVisible() && label->text() == "1:75 refused: minutes under 60";
    }));
}

TEST_F(WindowTest, ScreenReadersFindEveryControlByName) {
    key(Qt::Key_F1);
    type("1");
    key(Qt::Key_2, Qt::ControlModifier);
    // Every accessible object of the window: its name, role and value.
    std::vector<std::tuple<QString, QAccessible::Role, QString>> found;
    std::function<void(QAccessibleInterface*)> walk = [&](QAccessibleInterface* node) {
        found.emplace_back(node->text(QAccessible::Name), node->role(),
                           node->text(QAccessible::Value));
        for (int i = 0; i < node->childCount(); ++i) {
            walk(node->child(i));
        }
    };
    walk(QAccessible::queryAccessibleInterface(&window));
    const std::tuple<const char*, QAccessible::Role, const char*> expected[] = {
        {"Weight", QAccessible::Heading, ""},
        {"Weight", QAccessible::Button, ""},
        {"Surface", QAccessible::Button, ""},
        {"pound - lbs", QAccessible::Button, "1.00"},
        {"kilogram - kg", QAccessible::Button, "0.45"},
        {"M+", QAccessible::Button, ""},
        {"Divide", QAccessible::Button, ""},
        {"Display", QAccessible::StaticText, "0."},
        {"Menu", QAccessible::Button, ""},
    };
    for (const auto& [name, role, value] : expected) {
        EXPECT_NE(std::find(found.begin(), found.end(),
                            std::tuple{QString::fromUtf8(name), role, QString::fromUtf8(value)}),
                  found.end())
            << name;
    }
    for (const auto& [name, role, value] : found) {
        // No unnamed filler: every object says what it is. An empty row's
        // unit has no name, as the row is not there.
        EXPECT_TRUE(!name.isEmpty() || role == QAccessible::StaticText) << role;
        EXPECT_NE(role, QAccessible::Client) << name.toStdString();
    }
    EXPECT_EQ(window.unitCell(2)->toolTip(), "pound - lbs (Ctrl+2)"); // the row's key too
}

TEST_F(WindowTest, ZoomPaletteAndPlaceAreRemembered) {
    key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(window.zoom(), 1.25);
    EXPECT_EQ(window.width(), qRound(MenuWindow::DesignWidth * 1.25));
    EXPECT_EQ(window.pageButton(1)->height(), qRound(40 * 1.25));
    key(Qt::Key_N, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(window.night());
    key(Qt::Key_F1);
    type("5");
    key(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(window.valueCell(1)->textColor(), QColor(255, 190, 0)); // the input row at night
    EXPECT_NE(window.valueCell(2)->textColor(), QColor(0, 69, 125));
    {
        Calculator again;
        MenuWindow second(again.menu, nullptr, memory);
        EXPECT_EQ(second.zoom(), 1.25);
        EXPECT_TRUE(second.night());
    }
    key(Qt::Key_0, Qt::ControlModifier);
    key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(window.zoom(), 1.0);
    QSettings(memory, QSettings::IniFormat).setValue("position", QPoint(-30000, -30000));
    Calculator again;
    MenuWindow offScreen(again.menu, nullptr, memory);
    EXPECT_NE(offScreen.pos(), QPoint(-30000, -30000));
}

TEST_F(WindowTest, ZoomStopsWhereTheWindowWouldNotFitTheScreen) {
    // The test screen is 800 pixels high: 125 % fits, 150 % (894) would not.
    const int room = window.screen()->availableGeometry().height();
    for (int press = 0; press < 5; ++press) {
        key(Qt::Key_Plus, Qt::ControlModifier);
    }
    EXPECT_LE(window.frameGeometry().height(), room);
    EXPECT_EQ(window.zoom(), 1.25);
    QSettings(memory, QSettings::IniFormat).setValue("zoom", 2.5); // from a larger screen
    Calculator again;
    MenuWindow second(again.menu, nullptr, memory);
    EXPECT_EQ(second.zoom(), 1.0);
}

/// The contrast ratio of two colours, as the web's accessibility rules define it.
double contrast(const QColor& a, const QColor& b) {
    auto luminance = [](const QColor& c) {
        auto channel = [](double v) {
            return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) +
               0.0722 * channel(c.blueF());
    };
    const double la = luminance(a), lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

TEST_F(WindowTest, TheBellIsSeenAsAFlashOfTheDisplayInEitherPalette) {
    QtInteraction bell(&window);
    bell.setFlash([this] { window.flash(); });
    for (const bool night : {false, true}) {
        window.setNight(night);
        bell.beep();
        EXPECT_TRUE(window.display()->highlighted());
        EXPECT_TRUE(QTest::qWaitFor([this] { return !window.display()->highlighted(); }, 1000));
    }
}

TEST(Palette, TheInputRowReadsAtFourAndAHalfToOneOnItsBandInEitherPalette) {
    for (const bool night : {false, true}) {
        const ZelFrame::Style band = lookStyle(Look::Band, night);
        for (const QColor& behind : {band.top, band.bottom}) {
            EXPECT_GE(contrast(textColours(night).input, behind), 4.5) << (night ? "night" : "day");
        }
    }
}

TEST_F(WindowTest, TheAboutBoxTellsVersionKeysSettingsRatesAndLicence) {
    const QString about = window.aboutText();
    for (const char* part : {"zelFLIGHTAB 0.1.0", "Ctrl+1 … Ctrl+8", "/pilot/Tech/zelFLIGHTAB.ini",
                             "No rates stored yet", "GNU General Public License",
                             "World Magnetic Model 2025", "GeographicLib"}) {
        EXPECT_TRUE(about.contains(QString::fromUtf8(part))) << part;
    }
}

/// Real message boxes, closed by a key press as a user closes them; the
/// release of that key then reaches the window, as it does on a desktop.
class DialogTest : public ::testing::Test {
  protected:
    struct Dialogs : QtInteraction {
        bool quitted = false;
        void quit() override { quitted = true; }
    };

    /// Starts the window; every dialog that opens is closed with `closer`.
    void start(Qt::Key closer, const Symbols& symbols = Dot) {
        m_closer = closer;
        machine.regional.value = symbols;
        // A closed box answers the calculator, as in the program.
        dialogs.setDispatch(
            [this](const std::function<void()>& handler) { window.dispatch(handler); });
        dialogs.setAnswer(
            [this](int request, const Answer& answer) { menu.answer(request, answer); });
        m_watch.setInterval(10);
        QObject::connect(&m_watch, &QTimer::timeout, [this] {
            if (QWidget* modal = QApplication::activeModalWidget(); modal && modal != m_closed) {
                m_closed = modal;
                ++opened;
                QTest::keyPress(modal, m_closer); // the box closes on the press
            }
        });
        m_watch.start();
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }
    /// The release of the key that closed the last box, once it has closed:
    /// boxes open without holding up the window's events.
    void releaseCloser() {
        (void)QTest::qWaitFor(
            [this] { return m_closed != nullptr && QApplication::activeModalWidget() == nullptr; },
            2000);
        m_closed = nullptr;
        QTest::keyRelease(&window, m_closer);
    }
    void keys(const char* text) { QTest::keyClicks(&window, QString::fromLatin1(text)); }

    FakeMachine machine;
    Dialogs dialogs;
    Platform platform = machine.with(dialogs);
    Menu menu{platform};
    QTemporaryDir folder;
    MenuWindow window{menu, &dialogs, folder.path() + "/window.ini"};
    int opened = 0;

  private:
    QTimer m_watch;
    Qt::Key m_closer = Qt::Key_Return;
    QWidget* m_closed = nullptr;
};

TEST_F(DialogTest, EnterThatClosesABoxDoesNotOpenItAgain) {
    const std::pair<Qt::Key, const char*> cases[] = {{Qt::Key_F1, "5/0"}, {Qt::Key_F11, "8829"}};
    for (const auto& [page, typed] : cases) {
        start(Qt::Key_Return);
        QTest::keyClick(&window, page);
        keys(typed);
        QTest::keyClick(&window, Qt::Key_Return);
        releaseCloser();
        EXPECT_EQ(opened, 1) << typed;
        opened = 0;
    }
}

TEST_F(DialogTest, EscapeThatClosesABoxNeitherClearsNorQuits) {
    start(Qt::Key_Escape, Symbols{",", ","}); // the start-up warning opens
    releaseCloser();
    EXPECT_EQ(opened, 1);
    EXPECT_FALSE(dialogs.quitted);
    QTest::keyClick(&window, Qt::Key_F10);
    keys("1000");
    QTest::keyClick(&window, Qt::Key_1, Qt::ControlModifier);
    keys("5");
    QTest::keyClick(&window, Qt::Key_5, Qt::ControlModifier); // "Verify Fuel Density !"
    releaseCloser();
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(menu.view().rows[0].full, "1000");
}

TEST_F(DialogTest, ShiftF1OpensAboutWhicheverKeyIsLetGoFirst) {
    start(Qt::Key_Return);
    QTest::keyPress(&window, Qt::Key_F1, Qt::ShiftModifier);
    QTest::keyRelease(&window, Qt::Key_F1); // Shift already up
    releaseCloser();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(menu.face(), Face::Menu); // F1 did not open Weight
}

} // namespace
} // namespace zel::test

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
