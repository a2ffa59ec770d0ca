// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSlider>
#include <QStackedWidget>
#include <QTabWidget>

using namespace Callback;

namespace {

/// Pixels that a menu bar takes when it is added.
constexpr int kBarHeight = 30;

/// Units of height that make a pixel; the application's font is chosen so that this is a whole number.
int unitsPerPixel = 0;

template <typename T>
T *put(T *widget, int x, int y, int width, int height)
{
    widget->setGeometry(x, y, width, height);
    return widget;
}

/// Everything that has inner parts, and containers with content; as much lower as asked for, within each container
/// again.
class Content
{
public:
    Content(int dialog, int lower, QWidget *parent)
    {
        const int y = 10 + lower;
        const auto units = [](int pixels) { return pixels * unitsPerPixel; };
        ZelGUIRadioBoxAdd(dialog, 50, units(y), 700, units(80), "A", "B", "C", nullptr, nullptr, nullptr);
        ZelGUIOptionMenuAdd(dialog, 800, units(y), 900, units(28), "Linear,Logarithmic", nullptr);
        ZelGUISpinTextFieldAdd(dialog, 800, units(y + 40), 900, units(28), nullptr, nullptr, nullptr);
        ZelGUITextFieldAdd(dialog, 800, units(y + 80), 900, units(28), nullptr);
        ZelGUILabelAdd(dialog, 3500, units(y), "Label");
        m_text = ZelGUITextAdd(dialog, 1800, units(y), 1500, units(110), 0, nullptr);
        m_list = put(new QListWidget(parent), 10, y + 120, 150, 90);
        m_list->addItems({"One", "Two", "Three"});
        m_list->setCurrentRow(1);
        put(new QSlider(Qt::Horizontal, parent), 170, y + 120, 150, 25);
        auto *const frame = put(new QGroupBox(QStringLiteral("Frame"), parent), 170, y + 150, 150, 80);
        put(new QLabel(QStringLiteral("In the frame"), frame), 10, 20 + lower, 120, 20);
        auto *const combo = put(new QComboBox(frame), 10, 40 + lower, 120, 25);
        combo->setEditable(true);
        m_tabs = put(new QTabWidget(parent), 330, y + 120, 200, 110);
        m_form = put(new QStackedWidget(parent), 540, y + 120, 150, 110);
        for (const char *const name : {"First page", "Second page", "Third page"}) {
            auto *const tabPage = new QWidget;
            m_tabs->addTab(tabPage, QString::fromLatin1(name));
            put(new QLabel(QStringLiteral("On %1").arg(name), tabPage), 10, 5 + lower, 150, 20);
            auto *const formPage = new QWidget;
            m_form->addWidget(formPage);
            put(new QLabel(QStringLiteral("On %1").arg(name), formPage), 10, 5 + lower, 150, 20);
            put(new QListWidget(formPage), 10, 30 + lower, 130, 40);
        }
    }

    /// Brings up parts that weren't to be seen before.
    void use()
    {
        m_tabs->setCurrentIndex(2);
        m_form->setCurrentIndex(1);
        for (int i = 0; i < 50; ++i) {
            m_list->addItem(QStringLiteral("A wide and late item, number %1").arg(i));
            ZelGUITextAppendString(m_text, "More\n");
        }
    }

private:
    int m_text = -2;
    QListWidget *m_list = nullptr;
    QTabWidget *m_tabs = nullptr;
    QStackedWidget *m_form = nullptr;
};

/// Where each visible widget is within the window, by its way down.
QMap<QString, QRect> visibleGeometries(const QWidget *window)
{
    QMap<QString, QRect> geometries;
    for (const QWidget *const widget : window->findChildren<QWidget *>()) {
        if (!widget->isVisible() || qobject_cast<const QMenuBar *>(widget))
            continue;
        QString way;
        for (const QWidget *step = widget; step != window; step = step->parentWidget()) {
            int place = 0;
            for (const QObject *const sibling : step->parent()->children()) {
                if (sibling == step)
                    break;
                place += sibling->isWidgetType() && !qobject_cast<const QMenuBar *>(sibling);
            }
            way.prepend(QStringLiteral("/%1%2").arg(step->metaObject()->className()).arg(place));
        }
        geometries[way] = QRect(widget->mapTo(window, QPoint()), widget->size());
    }
    return geometries;
}

} // namespace

/// A menu bar that comes to a dialog with content.
class tst_MenuBar : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void room();
    void barItself_data() { visibility(); }
    void barItself();
    void innerParts_data();
    void innerParts();
    void popup();
    void addedLater_data() { visibility(); }
    void addedLater();

private:
    static void visibility();
    void launch(int dialog);
};

void tst_MenuBar::initTestCase()
{
    QFont font = QApplication::font();
    for (int size = 8; unitsPerPixel == 0; ++size) {
        QVERIFY(size < 40);
        font.setPixelSize(size);
        const int height = QFontMetrics(font).height();
        if (100 % height == 0)
            unitsPerPixel = 100 / height;
    }
    QApplication::setFont(font);
    QApplication::setCursorFlashTime(0);
    ZelTest::initTestCase();
}

void tst_MenuBar::room()
{
    const int dialog = createModal();
    auto *const window = object<QDialog>(dialog);
    const QSize size = window->size();
    auto *const before = object<QWidget>(ZelGUIButtonAdd(dialog, 100, 7 * unitsPerPixel, 500, 100, "", nullptr));
    auto *const box = boxButton(window, QStringLiteral("OK"))->parentWidget();
    const int boxY = box->y();

    ZelGUIMenuBarAdd(dialog);
    auto *const after = object<QWidget>(ZelGUIButtonAdd(dialog, 100, 7 * unitsPerPixel, 500, 100, "", nullptr));
    ZelGUIDialogSetTitle(dialog, "Taller");
    QCOMPARE(window->minimumSize(), size + QSize(0, kBarHeight));
    QCOMPARE(window->maximumSize(), size + QSize(0, kBarHeight));
    QCOMPARE(window->size(), size + QSize(0, kBarHeight));
    QCOMPARE(before->y(), 7 + kBarHeight);
    QCOMPARE(box->y(), boxY + kBarHeight);
    QCOMPARE(after->y(), 7);

    ZelGUIMenuBarAdd(dialog);
    QCOMPARE(window->size(), size + QSize(0, 2 * kBarHeight));
    QCOMPARE(before->y(), 7 + 2 * kBarHeight);
    QCOMPARE(after->y(), 7 + kBarHeight);
}

void tst_MenuBar::visibility()
{
    QTest::addColumn<bool>("isVisible");
    QTest::newRow("before the dialog is shown") << false;
    QTest::newRow("while it is visible") << true;
}

void tst_MenuBar::barItself()
{
    QFETCH(bool, isVisible);
    const int dialog = createModeless();
    auto *const window = object<QDialog>(dialog);
    const QSize size = window->size() + QSize(0, kBarHeight);
    if (isVisible)
        ZelGUIDialogLaunch(dialog);
    auto *const bar = object<QMenuBar>(ZelGUIMenuBarAdd(dialog));
    ZelGUIMenuAdd(bar->objectName().toInt(), "Menu");
    if (!isVisible)
        ZelGUIDialogLaunch(dialog);
    QTRY_VERIFY(bar->isVisible());
    QTRY_COMPARE(bar->geometry(), QRect(0, 0, size.width(), bar->sizeHint().height()));
    // More menus than there is room for don't widen the dialog.
    for (int i = 0; i < 40; ++i)
        ZelGUIMenuAdd(bar->objectName().toInt(), "Another");
    QCoreApplication::processEvents();
    QCOMPARE(window->size(), size);
    QCOMPARE(bar->width(), size.width());
}

void tst_MenuBar::innerParts_data()
{
    const Rows<bool, bool, int> row("isShownBefore", "isDroppedBefore", "bars");
    row("never shown before", false, false, 1);
    row("visible", true, false, 1);
    row("visible before, now hidden", true, true, 1);
    row("visible, two bars", true, false, 2);
}

/// Shows all of a dialog, its focus nowhere.
void tst_MenuBar::launch(int dialog)
{
    ZelGUIDialogLaunch(dialog);
    auto *const window = object<QDialog>(dialog);
    QVERIFY(waitUntilActive(window));
    for (QWidget *const widget : window->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!widget->isWindow())
            widget->show();
    }
    if (window->focusWidget())
        window->focusWidget()->clearFocus();
    QCoreApplication::processEvents();
}

/// What is moved is to look like what was made lower.
void tst_MenuBar::innerParts()
{
    QFETCH(bool, isShownBefore);
    QFETCH(bool, isDroppedBefore);
    QFETCH(int, bars);
    const int lower = bars * kBarHeight;
    const auto make = [](int height) {
        return ZelGUIDialogCreateModeless(
            ZELGUI_MAIN_WINDOW, 9000, height * unitsPerPixel, "", nullptr, [] {}, report<Help>);
    };
    // A picture of what is below the bars, and where it all is.
    const auto look = [&](int dialog) {
        // Also what the toolkit lays out later.
        QCoreApplication::processEvents();
        auto *const window = object<QDialog>(dialog);
        return qMakePair(visibleGeometries(window), window->grab(QRect(0, lower, -1, -1)).toImage());
    };

    const int moved = make(260);
    Content movedContent(moved, 0, object<QWidget>(moved));
    if (isShownBefore)
        launch(moved);
    if (isDroppedBefore) {
        ZelGUIDialogDrop(moved);
        QVERIFY(activate(mainWindow()));
    }
    for (int i = 0; i < bars; ++i)
        ZelGUIMenuBarAdd(moved);
    launch(moved);
    const auto movedLook = look(moved);
    movedContent.use();
    const auto movedUsedLook = look(moved);

    const int made = make(260 + lower);
    Content madeContent(made, lower, object<QWidget>(made));
    launch(made);
    const auto madeLook = look(made);
    madeContent.use();
    const auto madeUsedLook = look(made);

    QCOMPARE(movedLook.first.size(), 32);
    QCOMPARE(movedLook.first, madeLook.first);
    QCOMPARE(movedLook.second, madeLook.second);
    QVERIFY(movedUsedLook.first.size() > movedLook.first.size());
    QCOMPARE(movedUsedLook.first, madeUsedLook.first);
    QCOMPARE(movedUsedLook.second, madeUsedLook.second);
}

void tst_MenuBar::popup()
{
    const int dialog = launchModeless();
    auto *const combo = shown<QComboBox>(ZelGUIOptionMenuAdd(dialog, 100, 100, 1000, 150, "A,B,C", nullptr));
    const auto look = [combo] {
        combo->showPopup();
        const QWidget *const list = combo->view();
        const QVector<QRect> places = {list->geometry(), combo->view()->viewport()->geometry()};
        const QPoint offset = list->mapToGlobal(QPoint()) - combo->mapToGlobal(QPoint());
        combo->hidePopup();
        return qMakePair(places, offset);
    };
    const auto before = look();
    ZelGUIMenuBarAdd(dialog);
    QCOMPARE(look(), before);
}

/// What is added behind the bar has the size that it has in any dialog.
void tst_MenuBar::addedLater()
{
    QFETCH(bool, isVisible);
    QVector<QSize> sizes;
    for (const bool hasBar : {false, true}) {
        const int dialog = createModeless();
        if (isVisible)
            ZelGUIDialogLaunch(dialog);
        if (hasBar)
            ZelGUIMenuBarAdd(dialog);
        QCoreApplication::processEvents();
        auto *const label = object<QLabel>(ZelGUILabelAdd(dialog, 100, 100, "Label"));
        if (isVisible)
            label->show();
        else
            ZelGUIDialogLaunch(dialog);
        sizes << label->size();
    }
    QCOMPARE(sizes[1], sizes[0]);
}

ZELTEST_MAIN(tst_MenuBar)
#include "tst_menubar.moc"
