// SPDX-License-Identifier: MIT
#include "inspector.h"

#include "../widgetnames.h"
#include "textroom.h"

#include <QAbstractSpinBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QSizeGrip>
#include <QStackedWidget>
#include <QTabWidget>

#include <algorithm>

namespace {

/// Font units are converted one by one, so edges that ought to meet may miss each other by this.
constexpr int Tolerance = 1;

template <typename T>
bool is(const QWidget &widget)
{
    return qobject_cast<const T *>(&widget) != nullptr;
}

QString nameOf(const QWidget &widget)
{
    const QString caption = captionOf(widget);
    QStringList parts;
    if (!caption.isEmpty())
        parts << QStringLiteral("\"%1\"").arg(caption);
    // Only the library's identifiers are numbers; the toolkit's own names tell users nothing.
    bool isNumber = false;
    widget.objectName().toInt(&isNumber);
    if (isNumber)
        parts << QLatin1Char('#') + widget.objectName();
    return parts.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : parts.join(QLatin1Char(' '));
}

bool isSeparator(const QWidget &widget)
{
    const auto *const frame = qobject_cast<const QFrame *>(&widget);
    return frame && (frame->frameShape() == QFrame::HLine || frame->frameShape() == QFrame::VLine);
}

/// Where something is to be seen of a widget, in its parent's coordinates.
QRect placeOf(const QWidget &widget)
{
    const auto *const label = qobject_cast<const QLabel *>(&widget);
    return label ? drawnPart(*label).translated(label->pos()) : widget.geometry();
}

/// Widgets that add-ons put into others, without the parts that the toolkit makes for itself.
std::vector<const QWidget *> contentOf(const QWidget &container)
{
    std::vector<const QWidget *> result;
    for (const QObject *const child : container.children()) {
        const auto *const widget = qobject_cast<const QWidget *>(child);
        const bool counts = widget && !widget->isWindow() && widget->isVisible() && !is<QSizeGrip>(*widget) &&
                            !(is<QLabel>(*widget) && drawnPart(static_cast<const QLabel &>(*widget)).isEmpty());
        if (counts)
            result.push_back(widget);
    }
    return result;
}

class Inspection
{
public:
    std::vector<Finding> run(const QWidget &window)
    {
        inspectContent(window);
        return std::move(m_findings);
    }

private:
    void add(const QWidget &widget, const QString &problem, int pixels)
    {
        m_findings.push_back({nameOf(widget), problem, pixels});
    }

    void inspectContent(const QWidget &container)
    {
        const std::vector<const QWidget *> content = contentOf(container);
        for (const QWidget *const widget : content) {
            checkBounds(*widget, container);
            checkText(*widget);
            checkName(*widget);
        }
        checkOverlaps(content);
        for (const QWidget *const widget : content)
            inspectInside(*widget);
    }

    /// What is inside a control is the toolkit's business, but for pages.
    void inspectInside(const QWidget &widget)
    {
        if (const auto *const tabs = qobject_cast<const QTabWidget *>(&widget)) {
            if (tabs->currentWidget())
                inspectContent(*tabs->currentWidget());
        } else if (const auto *const stack = qobject_cast<const QStackedWidget *>(&widget)) {
            if (stack->currentWidget())
                inspectContent(*stack->currentWidget());
        } else if (!isControl(widget) && !is<QMenuBar>(widget)) {
            inspectContent(widget);
        }
    }

    void checkBounds(const QWidget &widget, const QWidget &container)
    {
        const QRect place = placeOf(widget);
        const QRect room = container.rect();
        const int beyond = std::max({room.left() - place.left(), room.top() - place.top(), place.right() - room.right(),
                                     place.bottom() - room.bottom()});
        if (beyond > Tolerance)
            add(widget, QStringLiteral("leaves %1").arg(nameOf(container)), beyond);
        const QRect hidden = titleRect(container) & place;
        if (std::min(hidden.width(), hidden.height()) > Tolerance)
            add(widget, QStringLiteral("covers the title of %1").arg(nameOf(container)), hidden.height());
    }

    void checkText(const QWidget &widget)
    {
        const auto *const field = is<QAbstractSpinBox>(widget) ? widget.findChild<QLineEdit *>() : nullptr;
        const QSize missing = missingRoom(field ? *field : widget);
        if (missing.width() > Tolerance)
            add(widget, QStringLiteral("has text that is too wide"), missing.width());
        if (missing.height() > Tolerance)
            add(widget, QStringLiteral("has text that is too high"), missing.height());
    }

    void checkName(const QWidget &widget)
    {
        const bool needsName = isControl(widget) && !is<QTabWidget>(widget) && !is<QScrollBar>(widget);
        if (needsName && widget.accessibleName().isEmpty() && captionOf(widget).isEmpty())
            add(widget, QStringLiteral("has no name for assistive technology"), 0);
    }

    void checkOverlaps(const std::vector<const QWidget *> &content)
    {
        std::vector<QRect> places;
        places.reserve(content.size());
        for (const QWidget *const widget : content)
            places.push_back(placeOf(*widget));
        for (std::size_t i = 0; i < content.size(); ++i) {
            for (std::size_t j = i + 1; j < content.size(); ++j) {
                if (places[i].intersects(places[j]))
                    checkOverlap(*content[i], places[i], *content[j], places[j]);
            }
        }
    }

    void checkOverlap(const QWidget &one, const QRect &onePlace, const QWidget &other, const QRect &otherPlace)
    {
        const QRect common = onePlace & otherPlace;
        const int pixels = std::min(common.width(), common.height());
        if (pixels <= Tolerance && !isSeparator(one) && !isSeparator(other))
            return;
        // A frame lies behind what stands inside it.
        if ((is<QGroupBox>(one) && onePlace.contains(otherPlace)) ||
            (is<QGroupBox>(other) && otherPlace.contains(onePlace)))
            return;
        add(one, QStringLiteral("overlaps %1").arg(nameOf(other)), pixels);
    }

    std::vector<Finding> m_findings;
};

} // namespace

std::vector<Finding> inspect(const QWidget &window)
{
    return Inspection().run(window);
}
