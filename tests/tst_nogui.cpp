// SPDX-License-Identifier: MIT
#include "support/call.h"

#include <common_ui_qt/mainwindow.h>
#include <zelgui/zelgui.h>
#include <zvsdkbase/hostcontrol.h>

#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QTest>

#include <memory>

/// Every function without a GUI. Whether there is one is decided once per process, so the reason why there is none
/// comes from the command line: "batch", "nowindow" or "destroyed".
class tst_NoGui : public QObject
{
    Q_OBJECT

public:
    explicit tst_NoGui(const QString &reason) : m_reason(reason) {}

private Q_SLOTS:
    void initTestCase();
    void neutralAnswers();
    void neverComesBack();

private:
    QString m_reason;
    std::unique_ptr<QMainWindow> m_mainWindow;
};

void tst_NoGui::initTestCase()
{
    const auto createDialog = [] {
        return ZelGUIDialogCreateModal(ZELGUI_MAIN_WINDOW, 1, 1, "", nullptr, nullptr, nullptr, nullptr, nullptr);
    };
    if (m_reason == "nowindow") {
        QCOMPARE(createDialog(), -2);
        return;
    }
    // None of these may decide that there is no GUI, before the window that makes one.
    QCOMPARE(ZelGUIColoredButtonAdd(0, 1, 1, 1, 1, 1, nullptr), -2);
    QCOMPARE(ZelGUIDialogIsUp(0), 0);
    m_mainWindow = std::make_unique<QMainWindow>();
    if (m_reason == "batch") {
        orvane::host::setBatchModeActive(true);
        QCOMPARE(createDialog(), -2);
    } else {
        QCOMPARE(createDialog(), 0);
        QCOMPARE(ZelGUIToggleAdd(0, 1, 1, 1, 1, "", nullptr), 1);
        m_mainWindow.reset();
    }
}

void tst_NoGui::neutralAnswers()
{
    for (const Function &function : functions()) {
        for (const int id : {-1, 0, 1}) {
            Harmless source;
            for (const Parameter *const identifier : identifiersOf(function))
                source.identifiers[identifier] = id;
            Call call(function, source);
            QVERIFY2(call.run() == function.withoutGui && call.areOutputsUntouched(), function.name);
        }
    }
    QVERIFY(!m_mainWindow || m_mainWindow->findChildren<QDialog *>().isEmpty());
}

void tst_NoGui::neverComesBack()
{
    orvane::host::setBatchModeActive(false);
    QMainWindow mainWindow;
    orvane::ui::findMainWindow(true);
    QCOMPARE(ZelGUIDialogCreateModal(ZELGUI_MAIN_WINDOW, 1, 1, "", nullptr, nullptr, nullptr, nullptr, nullptr), -2);
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    tst_NoGui test(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    return QTest::qExec(&test, QStringList(QString::fromLocal8Bit(argv[0])));
}

#include "tst_nogui.moc"
