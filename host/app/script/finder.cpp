// SPDX-License-Identifier: MIT
#include "finder.h"

#include "../widgetnames.h"
#include "nearest.h"
#include "windows.h"

#include <QAbstractSpinBox>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSlider>
#include <QTabWidget>
#include <QToolButton>

#include <algorithm>

namespace {

template <typename T>
bool is(const QObject &object)
{
    return qobject_cast<const T *>(&object) != nullptr;
}

bool isToggle(const QObject &object)
{
    const auto *const button = qobject_cast<const QAbstractButton *>(&object);
    return button && button->isCheckable() && !is<QRadioButton>(object);
}

/// What is written beside the first button of a radio box, or else above it.
QString captionOfGroup(const QList<QWidget *> &buttons)
{
    const QRect first = buttons.value(0)->geometry();
    const QLabel *beside = nullptr;
    const QLabel *above = nullptr;
    for (const QLabel *const label :
         buttons[0]->parentWidget()->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly)) {
        const QRect place = label->geometry();
        if (!label->isVisibleTo(label->parentWidget()) || label->text().isEmpty())
            continue;
        const bool isOnLine = place.center().y() >= first.top() && place.center().y() <= first.bottom();
        if (isOnLine && place.left() < first.left() && (!beside || place.left() > beside->x()))
            beside = label;
        const int gap = first.top() - place.bottom();
        const bool isRightAbove =
            gap > 0 && gap <= first.height() && place.left() <= first.right() && place.right() >= first.left();
        if (isRightAbove && (!above || place.top() > above->y()))
            above = label;
    }
    const QLabel *const label = beside ? beside : above;
    return label ? captionOf(*label) : QString();
}

/// Title of the frame that the widget stands in.
QString titleAround(const QWidget &widget)
{
    const QWidget *const parent = widget.parentWidget();
    return parent && is<QGroupBox>(*parent) ? captionOf(*parent) : QString();
}

struct Candidate
{
    QObject *object;
    QString name;
    bool isVisible;
    QPoint position;
};

/// Everything of a kind inside a dialog, in reading order.
std::vector<Candidate> candidates(const QWidget &dialog, const Kind &kind)
{
    std::vector<Candidate> result;
    for (QObject *const object : dialog.findChildren<QObject *>()) {
        if (!kind.accepts(*object))
            continue;
        const QList<QWidget *> widgets = widgetsOf(object);
        QWidget *const widget = widgets.value(0);
        // Parts of a widget go by the whole of it; popups are no part of a dialog.
        if (!widget || widget->window() != &dialog || &wholeWidget(*widget) != widget)
            continue;
        QString name = object == widget ? captionOf(*widget) : captionOfGroup(widgets);
        if (name.isEmpty())
            name = titleAround(*widget);
        result.push_back({object, name, widget->isVisible(), widget->mapTo(&dialog, QPoint())});
    }
    std::stable_sort(result.begin(), result.end(), [](const Candidate &a, const Candidate &b) {
        return a.position.y() != b.position.y() ? a.position.y() < b.position.y() : a.position.x() < b.position.x();
    });
    return result;
}

/// The visible ones, or if none is, all.
std::vector<Candidate> preferVisible(std::vector<Candidate> found)
{
    const auto firstHidden =
        std::stable_partition(found.begin(), found.end(), [](const Candidate &one) { return one.isVisible; });
    if (firstHidden != found.begin())
        found.erase(firstHidden, found.end());
    return found;
}

QString withoutEllipsis(QString name)
{
    for (const QString &dots : {QStringLiteral("..."), QString(QChar(0x2026))}) {
        if (name.endsWith(dots))
            name.chop(dots.size());
    }
    return name;
}

/// Names are compared without blanks around them, colons and dots at the end.
QString comparable(const QString &name)
{
    QString result = name.simplified();
    while (result.endsWith(QLatin1Char(':')))
        result = result.left(result.size() - 1).trimmed();
    return withoutEllipsis(result);
}

std::vector<Candidate> called(const std::vector<Candidate> &all, const QString &name)
{
    std::vector<Candidate> found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found), [wanted = comparable(name)](const Candidate &one) {
        return !one.name.isEmpty() && comparable(one.name) == wanted;
    });
    return preferVisible(std::move(found));
}

/// Takes the number off `Name [2]`; 0 if there is none.
int takeOrdinal(QString &name)
{
    static const QRegularExpression pattern(QStringLiteral("^(.*) \\[([1-9][0-9]*)\\]$"));
    const QRegularExpressionMatch match = pattern.match(name);
    if (!match.hasMatch())
        return 0;
    name = match.captured(1);
    return match.captured(2).toInt();
}

QString describe(const Kind &kind, const Word &name)
{
    return QStringLiteral("no %1 is called %2").arg(QString::fromLatin1(kind.noun), name.written());
}

SearchResult findByIdentifier(const QWidget &dialog, const Word &name, const Kind &kind)
{
    SearchResult result;
    for (QObject *const object : dialog.findChildren<QObject *>(name.text.mid(1))) {
        if (kind.accepts(*object)) {
            result.object = object;
            return result;
        }
        result.failure = QStringLiteral("%1 is not a %2").arg(name.text, QString::fromLatin1(kind.noun));
    }
    if (result.failure.isEmpty())
        result.failure =
            QStringLiteral("nothing in %1 has the identifier %2").arg(quoted(dialog.windowTitle()), name.text);
    return result;
}

QString ambiguity(const std::vector<Candidate> &found, const Word &name)
{
    QStringList identifiers;
    for (const Candidate &one : found) {
        if (!one.object->objectName().isEmpty())
            identifiers.append(QLatin1Char('#') + one.object->objectName());
    }
    return QStringLiteral("%1 have the name %2; the first one is %3%4")
        .arg(QString::number(found.size()), name.written(), quoted(name.text + QLatin1String(" [1]")),
             identifiers.isEmpty() ? QString()
                                   : QStringLiteral(", and identifiers are ") + identifiers.join(QLatin1String(", ")));
}

/// The page of a tab widget that has to be shown for the widget to be seen; null if there is none.
const QWidget *hiddenTabPage(const QWidget &widget)
{
    for (const QWidget *page = &widget; page->parentWidget() && !page->isWindow(); page = page->parentWidget()) {
        const QWidget *const stack = page->parentWidget();
        if (page->isHidden() && stack->parentWidget() && is<QTabWidget>(*stack->parentWidget()))
            return page;
    }
    return nullptr;
}

} // namespace

namespace Kinds {
const Kind Button{"button",
                  [](const QObject &object) { return is<QAbstractButton>(object) && !is<QToolButton>(object); }};
const Kind Toggle{"toggle", isToggle};
const Kind RadioButton{"radio button", is<QRadioButton>};
const Kind Choice{"option menu or radio box",
                  [](const QObject &object) { return is<QComboBox>(object) || is<QButtonGroup>(object); }};
const Kind Field{"field", [](const QObject &object) {
                     return is<QLineEdit>(object) || is<QAbstractSpinBox>(object) || is<QPlainTextEdit>(object);
                 }};
const Kind MultiLineText{"multi-line text", is<QPlainTextEdit>};
const Kind List{"list", is<QListView>};
const Kind Scale{"scale", is<QSlider>};
const Kind Spin{"spin field", is<QAbstractSpinBox>};
const Kind Control{"widget", [](const QObject &object) {
                       return !is<QLabel>(object) && (is<QWidget>(object) || is<QButtonGroup>(object));
                   }};
const Kind Anything{"widget", [](const QObject &object) { return is<QWidget>(object) || is<QButtonGroup>(object); }};
} // namespace Kinds

QList<QWidget *> widgetsOf(QObject *object)
{
    QList<QWidget *> result;
    if (const auto *const group = qobject_cast<QButtonGroup *>(object)) {
        for (QAbstractButton *const button : group->buttons())
            result.append(button);
    } else if (auto *const widget = qobject_cast<QWidget *>(object)) {
        result.append(widget);
    }
    return result;
}

QStringList namesOf(const QWidget &dialog, const Kind &kind)
{
    QStringList names;
    for (const Candidate &one : candidates(dialog, kind)) {
        if (!one.name.isEmpty() && one.isVisible)
            names.append(one.name);
        else if (one.isVisible && !one.object->objectName().isEmpty())
            names.append(QLatin1Char('#') + one.object->objectName());
    }
    names.removeDuplicates();
    return names;
}

SearchResult find(const QWidget &dialog, const Word &name, const Kind &kind)
{
    if (name.isIdentifier())
        return findByIdentifier(dialog, name, kind);
    const std::vector<Candidate> all = candidates(dialog, kind);
    std::vector<Candidate> found = called(all, name.text);
    QString base = name.text;
    const int ordinal = found.empty() ? takeOrdinal(base) : 0;
    if (ordinal > 0)
        found = called(all, base);

    SearchResult result;
    if (found.empty())
        result.failure =
            QStringLiteral("%1 in %2%3")
                .arg(describe(kind, name), describeWindow(dialog), whatThereIs(name.text, namesOf(dialog, kind)));
    else if (ordinal > static_cast<int>(found.size()))
        result.failure = QStringLiteral("only %1 in %2 have the name %3")
                             .arg(QString::number(found.size()), describeWindow(dialog), quoted(base));
    else if (ordinal > 0)
        result.object = found[static_cast<std::size_t>(ordinal) - 1].object;
    else if (found.size() > 1)
        result.failure = ambiguity(found, name);
    else
        result.object = found[0].object;
    return result;
}

QString hindrance(const QWidget &widget)
{
    if (const QWidget *const page = hiddenTabPage(widget)) {
        const QString title = quoted(captionOf(*page));
        return QStringLiteral("it is on the page %1, which is not shown; first, \"tab\" has to show that").arg(title);
    }
    if (!widget.isVisible())
        return widget.isVisibleTo(widget.parentWidget()) ? QStringLiteral("it is on a page that is not shown")
                                                         : QStringLiteral("it is hidden");
    if (!widget.isEnabled())
        return QStringLiteral("it is disabled");
    return {};
}

SearchResult findUsable(const QWidget &dialog, const Word &name, const Kind &kind)
{
    SearchResult result = find(dialog, name, kind);
    const QList<QWidget *> widgets = widgetsOf(result.object);
    if (widgets.isEmpty())
        return result;
    const QString reason = hindrance(*widgets[0]);
    if (!reason.isEmpty())
        return {
            nullptr,
            QStringLiteral("the %1 %2 can't be used: %3").arg(QString::fromLatin1(kind.noun), name.written(), reason)};
    return result;
}

QString nameFor(const QObject &object, const QWidget &dialog, const Kind &kind)
{
    const std::vector<Candidate> all = candidates(dialog, kind);
    const auto self =
        std::find_if(all.begin(), all.end(), [&object](const Candidate &one) { return one.object == &object; });
    if (self != all.end() && !self->name.isEmpty()) {
        const std::vector<Candidate> same = called(all, self->name);
        if (same.size() == 1 && same[0].object == &object)
            return quoted(self->name);
    }
    if (Word{QLatin1Char('#') + object.objectName()}.isIdentifier())
        return QLatin1Char('#') + object.objectName();
    if (self == all.end() || self->name.isEmpty())
        return {};
    const std::vector<Candidate> same = called(all, self->name);
    for (std::size_t i = 0; i < same.size(); ++i) {
        if (same[i].object == &object)
            return quoted(QStringLiteral("%1 [%2]").arg(self->name, QString::number(i + 1)));
    }
    return {};
}
