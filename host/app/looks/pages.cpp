// SPDX-License-Identifier: MIT
#include "pages.h"

#include "../widgetnames.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStringList>
#include <QTabWidget>

#include <vector>

namespace {

/// Keeps changes of the focus from all widgets while it lives, and gives the focus back.
class FocusSilence : public QObject
{
public:
    FocusSilence() : m_focused(QApplication::focusWidget()) { qApp->installEventFilter(this); }
    ~FocusSilence() override
    {
        if (m_focused)
            m_focused->setFocus();
        qApp->removeEventFilter(this);
    }
    FocusSilence(const FocusSilence &) = delete;
    FocusSilence &operator=(const FocusSilence &) = delete;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        return event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    }

private:
    const QPointer<QWidget> m_focused;
};

/// The stack of a tab widget is a part of it, and not meant.
bool holdsPages(const QWidget &widget)
{
    const bool isForm = qobject_cast<const QStackedWidget *>(&widget) && &wholeWidget(widget) == &widget;
    return isForm || qobject_cast<const QTabWidget *>(&widget);
}

/// The outermost ones: what is inside a page comes with the page.
void collectPageHolders(const QWidget &root, std::vector<QWidget *> &holders)
{
    for (QObject *const child : root.children()) {
        auto *const widget = qobject_cast<QWidget *>(child);
        if (!widget || widget->isWindow() || !widget->isVisible())
            continue;
        if (holdsPages(*widget))
            holders.push_back(widget);
        else
            collectPageHolders(*widget, holders);
    }
}

template <typename Holder>
void setCurrent(Holder &holder, int index)
{
    const QSignalBlocker silence(&holder);
    holder.setCurrentIndex(index);
}

class PageTour
{
public:
    explicit PageTour(const std::function<void(const QString &)> &visit) : m_visit(visit) {}

    /// Visits all pages inside `root`, and those inside them.
    void run(const QWidget &root)
    {
        std::vector<QWidget *> holders;
        collectPageHolders(root, holders);
        for (QWidget *const holder : holders) {
            if (auto *const tabs = qobject_cast<QTabWidget *>(holder))
                turnPages(*tabs);
            else
                turnPages(*static_cast<QStackedWidget *>(holder));
        }
    }
    bool hasVisited() const { return m_visited; }

private:
    template <typename Holder>
    void turnPages(Holder &holder)
    {
        const int before = holder.currentIndex();
        for (int i = 0; i < holder.count(); ++i) {
            setCurrent(holder, i);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
            const QString title = captionOf(*holder.widget(i));
            m_titles.append(title.isEmpty() ? QString::number(i + 1) : title);
            m_visited = true;
            m_visit(m_titles.join(QLatin1String(", ")));
            run(*holder.widget(i));
            m_titles.removeLast();
        }
        setCurrent(holder, before);
    }

    const std::function<void(const QString &)> &m_visit;
    QStringList m_titles;
    bool m_visited = false;
};

} // namespace

void visitPages(QWidget &window, const std::function<void(const QString &page)> &visit)
{
    const FocusSilence silence;
    PageTour tour(visit);
    tour.run(window);
    if (!tour.hasVisited())
        visit(QString());
}
