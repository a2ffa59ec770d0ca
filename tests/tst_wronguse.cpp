// SPDX-License-Identifier: MIT
#include "support/call.h"
#include "support/scene.h"
#include "support/snapshot.h"
#include "support/zeltest.h"

#include <QDialog>
#include <QTimer>

#include <limits>

using orvane::interface::bit;

// Called in place of the host's, which would wait for the user.
extern "C" void ZelUtilDialogErrMsg(const char *) {}

Q_DECLARE_METATYPE(const Function *)
Q_DECLARE_METATYPE(const Parameter *)

/// Every function with every kind of object and with identifiers of nothing in each identifier argument, and with null
/// for each pointer.
class tst_WrongUse : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void wrongIdentifiers_data() { addFunctions(false); }
    void wrongIdentifiers();
    void rightIdentifiers_data() { addFunctions(true); }
    void rightIdentifiers();
    void nullIsEmpty_data();
    void nullIsEmpty();

private:
    static void addFunctions(bool onlyWithObjects);
    QVector<int> rightIds(const Parameter &parameter) const;
    QVector<int> wrongIds(const Parameter &parameter) const;
    /// Names an object for each identifier.
    void setIdentifiers(Harmless &source, const Function &function) const;
    void show();

    std::vector<SceneObject> m_objects;
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
        QVERIFY2(object<QObject>(each.id), each.creator->name);
    using Limits = std::numeric_limits<int>;
    m_nothing = {destroyed, -1, -2, m_objects.back().id + 1, Limits::min(), Limits::max()};
    // Some properties make what they tell of when they are read first.
    snapshot(mainWindow());
}

QVector<int> tst_WrongUse::rightIds(const Parameter &parameter) const
{
    QVector<int> ids;
    for (const SceneObject &each : m_objects) {
        if (each.isOneOf(workingTypes(parameter)))
            ids << each.id;
    }
    return ids;
}

QVector<int> tst_WrongUse::wrongIds(const Parameter &parameter) const
{
    QVector<int> ids = m_nothing;
    if (parameter.accepted & bit(ObjectType::MainWindow))
        ids.removeAll(ZELGUI_MAIN_WINDOW);
    for (const SceneObject &each : m_objects) {
        if (!each.isOneOf(workingTypes(parameter)))
            ids << each.id;
    }
    return ids;
}

void tst_WrongUse::setIdentifiers(Harmless &source, const Function &function) const
{
    for (const Parameter *const parameter : identifiersOf(function))
        source.identifiers[parameter] = rightIds(*parameter).value(0);
}

void tst_WrongUse::addFunctions(bool onlyWithObjects)
{
    QTest::addColumn<const Function *>("function");
    for (const Function &function : functions()) {
        if (!onlyWithObjects || !identifiersOf(function).empty())
            QTest::newRow(function.name) << &function;
    }
}

// The neutral answer, and nothing changes. Functions that look at two identifiers need both of them.
void tst_WrongUse::wrongIdentifiers()
{
    QFETCH(const Function *, function);
    const QStringList before = snapshot(mainWindow());
    const auto isNeutral = [function](Harmless &source) {
        Call call(*function, source);
        return call.run() == function->neutral && call.areOutputsUntouched();
    };
    for (const Parameter *const parameter : identifiersOf(*function)) {
        Harmless source;
        setIdentifiers(source, *function);
        for (const int id : wrongIds(*parameter)) {
            source.identifiers[parameter] = id;
            QVERIFY2(isNeutral(source), qPrintable(QString::number(id)));
        }
    }
    Harmless source;
    QVERIFY(isNeutral(source));
    QCOMPARE(snapshot(mainWindow()), before);
}

/// Lets the user see what has become of the objects.
void tst_WrongUse::show()
{
    QWidget *const dialog = object<QWidget>(m_objects.front().id);
    dialog->show();
    QCoreApplication::processEvents();
    dialog->grab();
    dialog->hide();
}

// With objects it works on, a function does it: with harmless arguments, then with null for one pointer after the
// other, and for all of them. Other dialogs are not concerned.
void tst_WrongUse::rightIdentifiers()
{
    QFETCH(const Function *, function);
    const std::vector<SceneObject> standing = m_objects;
    const int otherDialog = makeEveryKind(ZELGUI_MAIN_WINDOW).front().id;
    // Asking for sizes polishes lists, which lay out their items later.
    snapshot(object<QObject>(otherDialog));
    QCoreApplication::processEvents();
    const QStringList before = snapshot(object<QObject>(otherDialog));

    m_objects = makeEveryKind(ZELGUI_MAIN_WINDOW);
    const QPointer<QObject> dialog = object<QObject>(m_objects.front().id);
    std::set<const Parameter *> pointers;
    for (const Parameter &parameter : function->parameters) {
        if (std::visit([](auto null) { return std::is_pointer_v<decltype(null)>; }, parameter.null))
            pointers.insert(&parameter);
    }
    std::vector<std::set<const Parameter *>> nulls = {{}, pointers};
    for (const Parameter *const pointer : pointers)
        nulls.push_back({pointer});
    const Parameter *const last = identifiersOf(*function).back();
    for (const int id : rightIds(*last)) {
        for (const auto &each : nulls) {
            Harmless source;
            setIdentifiers(source, *function);
            source.identifiers[last] = id;
            source.nulls = each;
            // If this is a launch, end it.
            QTimer::singleShot(0, this, [id] { ZelGUIDialogDrop(id); });
            // What can be made or counted, is.
            Call call(*function, source);
            QVERIFY2(call.run() != function->neutral || function->neutral != Value(ZELGUI_INVALID_ID),
                     qPrintable(QString::number(id)));
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
    QTest::addColumn<const Function *>("function");
    QTest::addColumn<const Parameter *>("pointer");
    const std::set<Kind> canBeEmpty = {Kind::Latin1, Kind::Utf8, Kind::Format, Kind::Positions, Kind::Set};
    for (const Function &function : functions()) {
        for (const Parameter &parameter : function.parameters) {
            if (canBeEmpty.count(parameter.kind) && !parameter.isOptional)
                QTest::addRow("%s %s", function.name, parameter.name) << &function << &parameter;
        }
    }
}

// Null and empty data have the same outcome.
void tst_WrongUse::nullIsEmpty()
{
    QFETCH(const Function *, function);
    QFETCH(const Parameter *, pointer);
    const std::vector<SceneObject> standing = m_objects;
    std::vector<std::string> answers[2];
    QStringList outcomes[2];
    for (const bool isNull : {false, true}) {
        m_objects = makeEveryKind(ZELGUI_MAIN_WINDOW);
        QObject *const dialog = object<QObject>(m_objects.front().id);
        snapshot(dialog);
        const Parameter &first = function->parameters.front();
        for (const int id : rightIds(first)) {
            Harmless source;
            source.identifiers[&first] = id;
            if (isNull)
                source.nulls = {pointer};
            else
                source.empty = pointer;
            Call call(*function, source);
            call.run();
            // Identifiers differ, whatever was made.
            answers[isNull].push_back(function->created == ObjectType::None ? call.answer() : std::string());
        }
        outcomes[isNull] = snapshot(dialog, false);
        delete dialog;
    }
    m_objects = standing;
    QVERIFY(answers[0] == answers[1]);
    QCOMPARE(outcomes[1], outcomes[0]);
}

ZELTEST_MAIN(tst_WrongUse)
#include "tst_wronguse.moc"
