// SPDX-License-Identifier: MIT
#include "support/zeltest.h"

#include <QCheckBox>

using namespace Callback;

/// Check boxes.
class tst_Toggle : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void userChangesAreReported();
    void ownChangesAreNot();
    void changesInACallback();
};

void tst_Toggle::userChangesAreReported()
{
    const int id = ZelGUIToggleAdd(launchModeless(), 100, 100, 1500, 100, "  Show &grid ", reportInt<Toggle>);
    auto *const box = object<QCheckBox>(id);
    box->show();
    log().clear();
    QCOMPARE(box->text(), QString("Show &grid"));
    QCOMPARE(ZelGUIToggleGet(id), 0);
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
    QCOMPARE(ZelGUIToggleGet(id), 1);
    QTest::keyClick(box, Qt::Key_Space);
    QCOMPARE(ZelGUIToggleGet(id), 0);
    QCOMPARE(log(), QStringList({"Toggle 1", "Toggle 0"}));
}

void tst_Toggle::ownChangesAreNot()
{
    const int dialog = createModal();
    const int id = ZelGUIToggleAdd(dialog, 100, 100, 1500, 100, "Toggle", reportInt<Toggle>);
    ZelGUIToggleSet(id, 1);
    QCOMPARE(ZelGUIToggleGet(id), 1);
    ZelGUIToggleSet(id, 2);
    QCOMPARE(ZelGUIToggleGet(id), 0);
    QCOMPARE(log(), QStringList());

    const int push = ZelGUIButtonAdd(dialog, 100, 300, 1000, 100, "Push", nullptr);
    ZelGUIToggleSet(push, 1);
    QCOMPARE(ZelGUIToggleGet(push), 0);
}

// An add-on that refuses a change by setting the box back must hear of the next attempt too.
void tst_Toggle::changesInACallback()
{
    const int dialog = launchModeless();
    const int id = ZelGUIToggleAdd(dialog, 100, 100, 1500, 100, "Toggle", reportInt<Toggle>);
    const int other = ZelGUIToggleAdd(dialog, 100, 300, 1500, 100, "Other", nullptr);
    auto *const box = object<QCheckBox>(id);
    box->show();
    action(Toggle) = [=] {
        ZelGUIToggleSet(other, 1);
        ZelGUIToggleSet(id, 0);
    };
    QTest::keyClick(box, Qt::Key_Space);
    QTest::keyClick(box, Qt::Key_Space);
    QCOMPARE(log(), QStringList({"Toggle 1", "Toggle 1"}));
    QCOMPARE(ZelGUIToggleGet(id), 0);
    QCOMPARE(ZelGUIToggleGet(other), 1);
}

ZELTEST_MAIN(tst_Toggle)
#include "tst_toggle.moc"
