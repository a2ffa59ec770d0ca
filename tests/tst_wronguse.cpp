// SPDX-License-Identifier: MIT
#include "support/call.h"
#include "support/declared.h"
#include "support/scene.h"
#include "support/snapshot.h"
#include "support/zeltest.h"

#include <QDialog>
#include <QRegularExpression>
#include <QTimer>

#include <algorithm>
#include <limits>

// Called in place of the host's, which would wait for the user.
extern "C" void ZelUtilDialogErrMsg(const char *) {}

/// Every function with every kind of object and with identifiers of nothing in each identifier argument, and with null
/// for each pointer.
class tst_WrongUse : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void tableIsComplete();
    void wrongIdentifiers_data();
    void wrongIdentifiers();
    void rightIdentifiers_data() { wrongIdentifiers_data(); }
    void rightIdentifiers();
    void nullIsEmpty_data();
    void nullIsEmpty();

private:
    bool isAccepted(const QStringList &accepted, const SceneObject &candidate) const;
    QVector<int> rightIds(const Parameter &parameter) const;
    QVector<int> wrongIds(const Parameter &parameter) const;
    void show();

    QVector<SceneObject> m_objects;
    QVector<int> m_nothing;
};

void tst_WrongUse::initTestCase()
{
    ZelTest::initTestCase();
    const int doomed = createModal();
    const int destroyed = ZelGUIToggleAdd(doomed, 100, 100, 1000, 100, "Destroyed", nullptr);
    delete object<QDialog>(doomed);
    m_objects = makeEveryKind(ZELGUI_MAIN_WINDOW);
    for (const SceneObject &each : m_objects)
        QVERIFY2(object<QObject>(each.id), each.kind);
    using Limits = std::numeric_limits<int>;
    m_nothing = {destroyed, -1, -2, m_objects.last().id + 1, Limits::min(), Limits::max()};
    // Some properties make what they tell of when they are read first.
    snapshot(mainWindow());
}

bool tst_WrongUse::isAccepted(const QStringList &accepted, const SceneObject &candidate) const
{
    return std::any_of(accepted.begin(), accepted.end(), [&](const QString &name) {
        return name == QLatin1String(candidate.kind) || object<QObject>(candidate.id)->inherits(name.toLatin1());
    });
}

QVector<int> tst_WrongUse::rightIds(const Parameter &parameter) const
{
    QVector<int> ids;
    for (const SceneObject &candidate : m_objects) {
        if (isAccepted(parameter.accepts, candidate))
            ids << candidate.id;
    }
    return ids;
}

QVector<int> tst_WrongUse::wrongIds(const Parameter &parameter) const
{
    QVector<int> ids = m_nothing;
    if (parameter.name == QLatin1String("parentDialogId"))
        ids.removeAll(ZELGUI_MAIN_WINDOW);
    for (const SceneObject &candidate : m_objects) {
        if (!isAccepted(parameter.accepts, candidate))
            ids << candidate.id;
    }
    return ids;
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

void tst_WrongUse::wrongIdentifiers_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < entryPoints().size(); ++i)
        QTest::newRow(entryPoints()[i].name) << i;
}

// The neutral answer, and nothing changes. Functions that look at two identifiers need both of them.
void tst_WrongUse::wrongIdentifiers()
{
    QFETCH(int, index);
    const EntryPoint &entryPoint = entryPoints()[index];
    const QStringList before = snapshot(mainWindow());
    for (const int wrong : entryPoint.identifiers()) {
        const Parameter &parameter = entryPoint.parameters[wrong];
        // One that isn't read does no harm, and says nothing about the others.
        if (parameter.accepts.isEmpty() && entryPoint.identifiers().size() > 1)
            continue;
        for (const int id : wrongIds(parameter)) {
            Call call(entryPoint);
            for (const int other : entryPoint.identifiers())
                call.setNumber(other, rightIds(entryPoint.parameters[other]).value(0, id));
            call.setNumber(wrong, id);
            QVERIFY2(call.run() == entryPoint.neutral, qPrintable(QString::number(id)));
            QVERIFY2(call.areOutputsUntouched(), qPrintable(QString::number(id)));
        }
    }
    if (entryPoint.identifiers().isEmpty())
        QCOMPARE(Call(entryPoint).run(), entryPoint.neutral);
    QCOMPARE(snapshot(mainWindow()), before);
}

/// Lets the user see what has become of the objects.
void tst_WrongUse::show()
{
    QWidget *const dialog = object<QWidget>(m_objects.first().id);
    dialog->show();
    QCoreApplication::processEvents();
    dialog->grab();
    dialog->hide();
}

// With objects it works on, a function does it: with harmless arguments, then with null for one pointer after the
// other, and for all of them. Other dialogs are not concerned.
void tst_WrongUse::rightIdentifiers()
{
    QFETCH(int, index);
    const EntryPoint &entryPoint = entryPoints()[index];
    if (entryPoint.identifiers().isEmpty() || entryPoint.parameters[entryPoint.identifiers().last()].accepts.isEmpty())
        return;
    const QVector<SceneObject> standing = m_objects;
    const int otherDialog = makeEveryKind(ZELGUI_MAIN_WINDOW).first().id;
    // Asking for sizes polishes lists, which lay out their items later.
    snapshot(object<QObject>(otherDialog));
    QCoreApplication::processEvents();
    const QStringList before = snapshot(object<QObject>(otherDialog));

    m_objects = makeEveryKind(ZELGUI_MAIN_WINDOW);
    const QPointer<QObject> dialog = object<QObject>(m_objects.first().id);
    const auto pointers = entryPoint.positionsOf(isPointer);
    for (const SceneObject &each : m_objects) {
        if (!isAccepted(entryPoint.parameters[entryPoint.identifiers().last()].accepts, each))
            continue;
        for (int nulls = -1; nulls <= pointers.size(); ++nulls) {
            Call call(entryPoint);
            for (const int identifier : entryPoint.identifiers())
                call.setNumber(identifier, rightIds(entryPoint.parameters[identifier]).value(0, each.id));
            call.setNumber(entryPoint.identifiers().last(), each.id);
            for (int i = 0; i < pointers.size(); ++i) {
                if (nulls == i || nulls == pointers.size())
                    call.setNull(pointers[i]);
            }
            // If this is a launch, end it.
            QTimer::singleShot(0, this, [id = each.id] { ZelGUIDialogDrop(id); });
            // What can be made or counted, is.
            QVERIFY2(call.run() != entryPoint.neutral || entryPoint.neutral != QLatin1String("-2"), each.kind);
        }
        show();
    }
    QVERIFY(dialog);
    QCOMPARE(snapshot(object<QObject>(otherDialog)), before);
    delete dialog;
    delete object<QObject>(otherDialog);
    m_objects = standing;
}

void tst_WrongUse::nullIsEmpty_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("pointer");
    const auto canBeEmpty = [](Kind kind) {
        return isPointer(kind) && kind != Kind::Pixels && !isOutput(kind) && !isCallback(kind);
    };
    // Where null says that something isn't there at all.
    static const QRegularExpression absence(QStringLiteral("RadioBoxAdd label[345]|FrameAdd title"));
    for (int i = 0; i < entryPoints().size(); ++i) {
        const EntryPoint &entryPoint = entryPoints()[i];
        if (entryPoint.identifiers().isEmpty() || entryPoint.parameters[0].accepts.isEmpty())
            continue;
        for (const int pointer : entryPoint.positionsOf(canBeEmpty)) {
            const QString name = QLatin1String(entryPoint.name) + ' ' + entryPoint.parameters[pointer].name;
            if (!name.contains(absence))
                QTest::newRow(qPrintable(name)) << i << pointer;
        }
    }
}

// Null and empty data have the same outcome.
void tst_WrongUse::nullIsEmpty()
{
    QFETCH(int, index);
    QFETCH(int, pointer);
    const EntryPoint &entryPoint = entryPoints()[index];
    const QVector<SceneObject> standing = m_objects;
    QStringList answers;
    QVector<QStringList> outcomes;
    for (const bool isNull : {false, true}) {
        m_objects = makeEveryKind(ZELGUI_MAIN_WINDOW);
        QObject *const dialog = object<QObject>(m_objects.first().id);
        snapshot(dialog);
        for (const int id : rightIds(entryPoint.parameters[0])) {
            Call call(entryPoint);
            call.setNumber(0, id);
            if (isNull)
                call.setNull(pointer);
            else
                call.setEmpty(pointer);
            const QString answer = call.run();
            // Identifiers differ, whatever was made.
            answers << (entryPoint.neutral == QLatin1String("-2") ? QString() : answer);
        }
        outcomes << snapshot(dialog, false);
        delete dialog;
    }
    m_objects = standing;
    QCOMPARE(answers.mid(answers.size() / 2), answers.mid(0, answers.size() / 2));
    QCOMPARE(outcomes[1], outcomes[0]);
}

ZELTEST_MAIN(tst_WrongUse)
#include "tst_wronguse.moc"
