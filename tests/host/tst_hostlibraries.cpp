// SPDX-License-Identifier: MIT
#include "support/rows.h"

#include <common_ui_qt/mainwindow.h>
#include <zvsdkdialogs_common_qt/qtdialogabstract.h>
#include <zvsdkdialogs_prompt_qt/colorchooserdialog.h>
#include <zvtoolbox/stringlist.h>

#include <QDialogButtonBox>
#include <QMainWindow>
#include <QPushButton>
#include <QTest>

#include <limits>
#include <memory>

#include <dlfcn.h>

using orvane::dialogs::common::QtDialogAbstract;
using orvane::dialogs::prompt::ColorChooserDialog;
using orvane::toolbox::StringList;
using orvane::ui::findMainWindow;

namespace {

bool outOfMemory = false;

}

/// Takes the place of the host's function, in the host's libraries too.
char *ZelUtilStringAlloc(size_t size, const char *label)
{
    using Function = char *(*)(size_t, const char *);
    static const auto original = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "ZelUtilStringAlloc"));
    return outOfMemory ? nullptr : original(size, label);
}

class TestHostLibraries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stringList();
    void mainWindowIsFound();
    void oneDefaultButton();
    void colorToString_data();
    void colorToString();
};

void TestHostLibraries::stringList()
{
    StringList_s *handle = ZelUtilStringListAlloc();
    ZelUtilStringListAppendString(handle, "first");
    ZelUtilStringListAppendString(handle, "second");
    const StringList list(handle);
    QCOMPARE(list.size(), 2);
    QCOMPARE(list.get(1), std::string("first"));
    QCOMPARE(list.get(2), std::string("second"));
    for (const int position : {0, 3, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QCOMPARE(list.get(position), std::string());
    outOfMemory = true;
    QCOMPARE(list.get(1), std::string());
    outOfMemory = false;

    const StringList none(nullptr);
    QCOMPARE(none.size(), 0);
    QCOMPARE(none.get(1), std::string());
    ZelUtilStringListDealloc(&handle);
}

void TestHostLibraries::mainWindowIsFound()
{
    QVERIFY(!findMainWindow(true));
    const QWidget other;
    QVERIFY(!findMainWindow(false));
    auto hidden = std::make_unique<QMainWindow>();
    QCOMPARE(findMainWindow(false), hidden.get());
    QMainWindow shown;
    shown.show();
    QCOMPARE(findMainWindow(false), hidden.get());
    QCOMPARE(findMainWindow(true), &shown);
    shown.hide();
    hidden->show();
    QCOMPARE(findMainWindow(true), hidden.get());
    hidden.reset();
    QCOMPARE(findMainWindow(false), &shown);
}

void TestHostLibraries::oneDefaultButton()
{
    QDialogButtonBox box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Help);
    QPushButton *ok = box.button(QDialogButtonBox::Ok);
    QPushButton *cancel = box.button(QDialogButtonBox::Cancel);
    const auto isAlone = [&box](const QPushButton *button) {
        for (const auto *const each : box.findChildren<QPushButton *>()) {
            if (each->isDefault() != (each == button) || each->autoDefault() != (each == button))
                return false;
        }
        return true;
    };
    ok->setDefault(true);
    cancel->setAutoDefault(true);
    QtDialogAbstract::setDefaultButton(&box, cancel);
    QVERIFY(isAlone(cancel));
    QtDialogAbstract::setDefaultButton(&box, nullptr);
    QVERIFY(isAlone(nullptr));
    QtDialogAbstract::setDefaultButton(nullptr, ok);
    QVERIFY(ok->isDefault());
    QtDialogAbstract::setDefaultButton(nullptr, nullptr);
}

void TestHostLibraries::colorToString_data()
{
    const Rows<int, QByteArray, QByteArray> row("color", "longName", "shortName");
    row("none", -1, "None", "None");
    row("first", 0, "Black", "#000000");
    row("blue component only", 12, "Navy", "#000080");
    row("letters", 1, "Silver", "#c0c0c0");
    row("last", 15, "Aqua", "#00ffff");
    row("behind the last", 16, "Unknown", "Unknown");
}

void TestHostLibraries::colorToString()
{
    QFETCH(const int, color);
    QFETCH(const QByteArray, longName);
    QFETCH(const QByteArray, shortName);
    QCOMPARE(ColorChooserDialog::colorToString(color, true), longName.toStdString());
    QCOMPARE(ColorChooserDialog::colorToString(color, false), shortName.toStdString());
}

QTEST_MAIN(TestHostLibraries)
#include "tst_hostlibraries.moc"
