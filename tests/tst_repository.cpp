// SPDX-License-Identifier: MIT
#include "support/zeltest.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include <new>

using namespace Callback;

// Called in place of the host's.
extern "C" void ZelUtilColorMapGetBasicColorRGB(int, unsigned char *, unsigned char *, unsigned char *)
{
    throw std::bad_alloc();
}

/// Identifiers, and what they find; exceptions on both sides of the library.
class tst_Repository : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void identifiersCountUpAcrossKinds();
    void callbackMayThrow();
    void hostMayThrow();
};

void tst_Repository::identifiersCountUpAcrossKinds()
{
    // Without effect, and so without an identifier.
    QCOMPARE(ZelGUIColoredButtonAdd(0, 1, 1, 100, 100, 1, nullptr), -2);
    QCOMPARE(ZelGUISidebarRegister("Sidebar", nullptr, nullptr), -2);

    const int dialog = createModal();
    QCOMPARE(dialog, 0);
    QCOMPARE(ZelGUIButtonAdd(dialog, 100, 100, 1000, 100, "Button", nullptr), 1);
    QCOMPARE(ZelGUILabelAdd(dialog, 100, 300, "Label"), 2);
    QCOMPARE(ZelGUILabelAdd(999, 100, 300, "Nowhere"), -2);
    QCOMPARE(ZelGUIToggleAdd(dialog, 100, 500, 1000, 100, "Toggle", nullptr), 3);
    QCOMPARE(createModeless(), 4);

    QVERIFY(object<QDialog>(0));
    QVERIFY(object<QPushButton>(1));
    QVERIFY(object<QLabel>(2));
    QCOMPARE(object<QLabel>(2)->parent(), object<QDialog>(0));
}

void tst_Repository::callbackMayThrow()
{
    const int dialog = launchModeless();
    // A drop asked for before the exception still counts.
    action(Close) = [dialog] {
        ZelGUIDialogDrop(dialog);
        throw 1;
    };
    QTest::keyClick(object<QDialog>(dialog), Qt::Key_Escape);
    QCOMPARE(ZelGUIDialogIsUp(dialog), 0);
}

void tst_Repository::hostMayThrow()
{
    const int button = ZelGUIButtonAdd(createModal(), 100, 100, 1000, 100, "Button", nullptr);
    ZelGUIColoredButtonSetColor(button, 1);
    QCOMPARE(object<QPushButton>(button)->text(), QString("Button"));
}

ZELTEST_MAIN(tst_Repository)
#include "tst_repository.moc"
