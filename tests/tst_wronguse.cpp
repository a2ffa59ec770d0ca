// SPDX-License-Identifier: MIT
#include "support/entrypoints.h"
#include "support/zeltest.h"

#include <QDialog>

#include <algorithm>
#include <limits>

namespace {

bool isAccepted(const EntryPoint &entryPoint, const QObject *object)
{
    const auto accepted = QByteArray(entryPoint.accepts).split(',');
    return std::any_of(accepted.begin(), accepted.end(),
                       [object](const QByteArray &name) { return !name.isEmpty() && object->inherits(name); });
}

} // namespace

// Called in place of the host's, which would wait for the user.
extern "C" void ZelUtilDialogErrMsg(const char *) {}

/// Every function with identifiers that it can't use: the neutral answer, and nothing changes.
class tst_WrongUse : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tableIsComplete();
    void identifiers_data();
    void identifiers();
    void nullArguments_data() { identifiers_data(); }
    void nullArguments();

private:
    QVector<int> m_objects;
    int m_destroyed = -2;
};

void tst_WrongUse::initTestCase()
{
    ZelTest::initTestCase();
    const int dialog = createModal();
    m_objects << dialog;
    m_objects << ZelGUIButtonAdd(dialog, 100, 100, 1000, 100, "Button", nullptr);
    m_objects << ZelGUIToggleAdd(dialog, 100, 300, 1000, 100, "Toggle", nullptr);
    m_objects << ZelGUILabelAdd(dialog, 100, 500, "Label");
    const unsigned char pixel[] = {255, 0, 0};
    m_objects << ZelGUIBitmapButtonAdd(dialog, 100, 100, 100, 100, 1, 1, pixel, 0, 0, 0, 0, nullptr);
    m_objects << ZelGUIBitmapToggleAdd(dialog, 100, 100, 100, 100, 1, 1, pixel, 0, 0, 0, 0, nullptr);
    m_objects << ZelGUIRadioBoxAdd(dialog, 100, 100, 1000, 200, "A", "B", nullptr, nullptr, nullptr, nullptr);
    m_objects << ZelGUIOptionMenuAdd(dialog, 100, 100, 1000, 100, "A,B", nullptr);
    m_objects << ZelGUITextFieldAdd(dialog, 100, 100, 1000, 100, nullptr);
    m_objects << ZelGUISpinTextFieldAdd(dialog, 100, 100, 1000, 100, nullptr, nullptr, nullptr);
    m_objects << ZelGUITextAdd(dialog, 100, 100, 1000, 500, 0, nullptr);
    m_objects << ZelGUIScaleAdd(dialog, 100, 100, 1000, 100, 0, 9, 0, nullptr, nullptr);
    m_objects << ZelGUIFormAdd(dialog, 100, 100, 1000, 500);
    m_objects << ZelGUIFormAddPage(m_objects.last());
    m_objects << ZelGUITabAdd(dialog, 100, 100, 1000, 500, nullptr, nullptr);
    m_objects << ZelGUITabAddPage(m_objects.last(), "Page");
    m_objects << ZelGUIFrameAdd(dialog, 100, 100, 1000, 500, "Frame");
    m_objects << ZelGUIHorzSeparatorAdd(dialog, 100, 100, 1000);
    const int bar = ZelGUIMenuBarAdd(dialog);
    const int menu = ZelGUIMenuAdd(bar, "Menu");
    m_objects << bar << menu << ZelGUIMenuAddItem(menu, "Item", nullptr, nullptr);
    m_objects << ZelGUIMenuAddToggle(menu, "Toggle", nullptr, nullptr);
    const int list = ZelGUIListAdd(dialog, 100, 100, 1000, 500, 1, nullptr);
    ZelGUIListAppendItem(list, "A");
    ZelGUIListAppendItem(list, "B");
    ZelGUIListSetSelectedItem(list, 2);
    m_objects << list;
    for (const int id : m_objects)
        QVERIFY(object<QObject>(id));
    const int doomed = createModal();
    m_destroyed = ZelGUIToggleAdd(doomed, 100, 100, 1000, 100, "Destroyed", nullptr);
    delete object<QDialog>(doomed);
    // Some properties make what they tell of when they are read first.
    snapshot();
}

void tst_WrongUse::tableIsComplete()
{
    QStringList covered;
    for (const EntryPoint &entryPoint : entryPoints())
        covered << QString::fromLatin1(entryPoint.name);
    covered.sort();
    QVERIFY(!covered.isEmpty());
    QCOMPARE(covered, declaredFunctions());
}

void tst_WrongUse::identifiers_data()
{
    QTest::addColumn<int>("index");
    const auto all = entryPoints();
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(all[i].name) << i;
}

void tst_WrongUse::identifiers()
{
    QFETCH(int, index);
    const EntryPoint entryPoint = entryPoints().at(index);
    QVector<int> wrong = {-2, m_destroyed, 1000000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    const bool takesMainWindow = QByteArray(entryPoint.name).startsWith("ZelGUIDialogCreate");
    if (!takesMainWindow)
        wrong << -1;
    for (const int id : m_objects) {
        if (!isAccepted(entryPoint, object<QObject>(id)))
            wrong << id;
    }

    const QStringList before = snapshot();
    for (const int id : wrong)
        QVERIFY2(entryPoint.call(id) == entryPoint.neutral, qPrintable(QString::number(id)));
    QCOMPARE(snapshot(), before);
}

// The right kind of object and null for every pointer. Comes last: it changes the objects.
void tst_WrongUse::nullArguments()
{
    QFETCH(int, index);
    const EntryPoint entryPoint = entryPoints().at(index);
    if (QByteArray(entryPoint.name) == "ZelGUIDialogLaunch")
        return;
    for (const int id : m_objects) {
        if (isAccepted(entryPoint, object<QObject>(id)))
            entryPoint.call(id);
    }
}

ZELTEST_MAIN(tst_WrongUse)
#include "tst_wronguse.moc"
