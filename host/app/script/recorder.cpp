// SPDX-License-Identifier: MIT
#include "recorder.h"

#include "../widgetnames.h"
#include "aim.h"
#include "items.h"
#include "keys.h"
#include "menus.h"
#include "windows.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTextBlock>
#include <QToolButton>
#include <QWheelEvent>
#include <QWindow>

namespace {

/// The result of a dialog that hasn't ended. The toolkit also closes the windows of dialogs that end by themselves.
const int StillOpen = -0x7a656c;

template <typename T>
T *wholeAs(QWidget *widget)
{
    return qobject_cast<T *>(const_cast<QWidget *>(&wholeWidget(*widget)));
}

/// The option menu whose popup the widget belongs to.
QComboBox *menuOfPopup(const QWidget *widget)
{
    const QWidget *const window = widget->window();
    return window->windowType() == Qt::Popup ? qobject_cast<QComboBox *>(window->parentWidget()) : nullptr;
}

/// Keys that are never typed into a field.
bool leavesField(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Return || key == Qt::Key_Enter ||
           key == Qt::Key_Escape;
}

bool stepsValue(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

bool isModifierKey(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta ||
           key == Qt::Key_AltGr || key == Qt::Key_CapsLock || key == Qt::Key_NumLock || key == Qt::Key_unknown ||
           key == 0;
}

/// The entry that a letter chooses; null if there are several, among which it only moves.
const QAction *entryOfLetter(const QMenu &menu, const QString &letter)
{
    const QAction *found = nullptr;
    for (const QAction *const entry : menu.actions()) {
        const QKeySequence mnemonic = QKeySequence::mnemonic(entry->text());
        if (letter.isEmpty() || mnemonic != QKeySequence(QLatin1String("Alt+") + letter) || !entry->isVisible())
            continue;
        if (found)
            return nullptr;
        found = entry;
    }
    return found;
}

QString placeOf(const QPlainTextEdit &text, int position)
{
    const QTextBlock block = text.document()->findBlock(position);
    return QStringLiteral(" %1 %2").arg(QString::number(block.blockNumber() + 1),
                                        QString::number(position - block.position() + 1));
}

} // namespace

Recorder::Recorder(const QString &file, QWidget &mainWindow, const QStringList &launches)
    : m_transcript(file), m_mainWindow(mainWindow), m_launches(launches)
{
    qApp->installEventFilter(this);
}

Recorder::~Recorder()
{
    qApp->removeEventFilter(this);
    flush();
}

void Recorder::noteLaunch(const QString &name, int number)
{
    m_transcript.addLaunch(name, number, m_launches.count(name) < 2);
}

bool Recorder::eventFilter(QObject *watched, QEvent *event)
{
    // Of a press, widgets hear only after the focus has moved, and an add-on may have been called.
    if (auto *const window = qobject_cast<QWindow *>(watched)) {
        if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick)
            windowPressed(window, *static_cast<QMouseEvent *>(event));
    } else if (auto *const widget = qobject_cast<QWidget *>(watched)) {
        widgetEvent(widget, event);
    }
    return false;
}

void Recorder::windowPressed(const QWindow *window, const QMouseEvent &event)
{
    if (event.button() != Qt::LeftButton || QApplication::activePopupWidget())
        return;
    for (const QWidget *const top : QApplication::topLevelWidgets()) {
        QWidget *const widget = top->windowHandle() == window ? top->childAt(event.pos()) : nullptr;
        if (widget)
            mousePressed(widget, widget->mapFrom(top, event.pos()), event.modifiers());
    }
}

void Recorder::widgetEvent(QWidget *widget, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        watchWidget(widget);
        break;
    case QEvent::Hide:
        if (widget->isWindow())
            m_transcript.windowHidden(widget);
        break;
    case QEvent::MouseMove:
        if (auto *const list = wholeAs<QListView>(widget); list && m_row >= 0 && widget == list->viewport())
            rowsDraggedOver(list, static_cast<QMouseEvent *>(event)->pos());
        break;
    case QEvent::MouseButtonRelease:
        mouseReleased(widget, static_cast<QMouseEvent *>(event)->pos());
        break;
    case QEvent::KeyPress:
        keyPressed(widget, *static_cast<QKeyEvent *>(event));
        break;
    case QEvent::Shortcut:
        writeKey(widget->window(), static_cast<QShortcutEvent *>(event)->key().toString(QKeySequence::PortableText));
        break;
    case QEvent::Close:
        if (const auto *const dialog = qobject_cast<QDialog *>(widget); dialog && dialog->result() == StillOpen) {
            flush();
            m_transcript.add(widget, QStringLiteral("close"));
        }
        break;
    case QEvent::Wheel:
        wheelTurned(widget, static_cast<QWheelEvent *>(event)->angleDelta().y());
        break;
    default:
        break;
    }
}

void Recorder::watchWidget(QWidget *widget)
{
    const Qt::WindowType type = widget->windowType();
    if (widget->isWindow() && widget != &m_mainWindow && (type == Qt::Dialog || type == Qt::Window))
        m_transcript.windowShown(widget);
    if (auto *const dialog = qobject_cast<QDialog *>(widget))
        dialog->setResult(StillOpen);
    if (menuOfPopup(widget) && menuOfPopup(widget) == m_openMenu)
        m_wasOpened = true;
    if (auto *const field = qobject_cast<QLineEdit *>(widget))
        connect(field, &QLineEdit::textEdited, this, &Recorder::fieldEdited, Qt::UniqueConnection);
    if (auto *const menu = qobject_cast<QComboBox *>(widget))
        connect(menu, QOverload<int>::of(&QComboBox::activated), this, &Recorder::itemActivated, Qt::UniqueConnection);
    if (auto *const scale = qobject_cast<QSlider *>(widget))
        connect(scale, &QSlider::actionTriggered, this, &Recorder::scaleMoved, Qt::UniqueConnection);
}

void Recorder::mousePressed(QWidget *widget, const QPoint &position, Qt::KeyboardModifiers modifiers)
{
    if (!widget->isEnabled())
        return;
    if (auto *const button = qobject_cast<QAbstractButton *>(widget)) {
        pressButton(button);
    } else if (auto *const menu = qobject_cast<QComboBox *>(widget)) {
        keepPlaceFor(menu);
    } else if (auto *const bar = qobject_cast<QTabBar *>(widget)) {
        pressTab(bar, position);
    } else if (auto *const scale = qobject_cast<QSlider *>(widget)) {
        flush();
        m_scale = scale;
        m_dragPlace = -1;
        if (!scale->hasFocus())
            write("click", scale, Kinds::Scale);
    } else if (auto *const spin = qobject_cast<QAbstractSpinBox *>(widget)) {
        if (const int direction = arrowAt(*spin, position))
            write("step", spin, Kinds::Spin, direction > 0 ? QStringLiteral(" up") : QStringLiteral(" down"));
    } else if (auto *const list = wholeAs<QListView>(widget); list && widget == list->viewport()) {
        pressRow(list, position, modifiers);
    } else if (auto *const text = wholeAs<QPlainTextEdit>(widget); text && widget == text->viewport()) {
        if (!text->hasFocus())
            write("click", text, Kinds::MultiLineText);
        m_cursorKnownIn = nullptr;
    } else if (auto *const field = qobject_cast<QLineEdit *>(widget)) {
        QWidget *const whole = wholeAs<QWidget>(field);
        if (!whole->hasFocus())
            write("click", whole, Kinds::Field);
    }
}

void Recorder::pressButton(QAbstractButton *button)
{
    if (qobject_cast<QToolButton *>(button))
        return;
    const bool isToggle = button->isCheckable() && !qobject_cast<QRadioButton *>(button);
    if (qobject_cast<QRadioButton *>(button))
        write("choose", button, Kinds::RadioButton);
    else if (isToggle)
        write(button->isChecked() ? "uncheck" : "check", button, Kinds::Toggle);
    else
        write("press", button, Kinds::Button);
    m_pressPlace = m_transcript.size() - 1;
}

void Recorder::pressTab(QTabBar *bar, const QPoint &position)
{
    const int index = bar->tabAt(position);
    const auto *const tabs = qobject_cast<QTabWidget *>(bar->parentWidget());
    if (index < 0 || !tabs)
        return;
    flush();
    m_transcript.add(bar->window(), QStringLiteral("tab ") + quoted(bar->tabText(index).remove(QLatin1Char('&'))));
}

void Recorder::pressRow(QListView *list, const QPoint &position, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex index = list->indexAt(position);
    m_row = index.row();
    const QString item =
        index.isValid() ? QLatin1Char(' ') + nameForItem(m_row, itemsOf(*list)) : QStringLiteral(" none");
    const bool isExtending = modifiers & Qt::ShiftModifier;
    const bool isAdding = modifiers & Qt::ControlModifier;
    const bool takesOne = list->selectionMode() == QAbstractItemView::SingleSelection;
    if (!index.isValid() || takesOne || (!isExtending && !isAdding))
        write("select", list, Kinds::List, item);
    else if (isExtending)
        write("extend", list, Kinds::List, item);
    else
        write(list->selectionModel()->isSelected(index) ? "deselect" : "add", list, Kinds::List, item);
}

void Recorder::rowsDraggedOver(QListView *list, const QPoint &position)
{
    const QModelIndex index = list->indexAt(position);
    if (!index.isValid() || index.row() == m_row)
        return;
    m_row = index.row();
    const bool takesOne = list->selectionMode() == QAbstractItemView::SingleSelection;
    write(takesOne ? "select" : "extend", list, Kinds::List, QLatin1Char(' ') + nameForItem(m_row, itemsOf(*list)));
}

void Recorder::mouseReleased(QWidget *widget, const QPoint &position)
{
    m_row = -1;
    m_scale = nullptr;
    auto *const button = qobject_cast<QAbstractButton *>(widget);
    // Who moves away from a button before letting it go has not pressed it.
    if (button && !button->rect().contains(position) && m_pressPlace == m_transcript.size() - 1)
        m_transcript.remove(m_pressPlace);
    m_pressPlace = -1;
    const auto *const menu = qobject_cast<QMenu *>(widget);
    if (const QAction *const entry = menu ? menu->actionAt(position) : nullptr)
        chooseMenuEntry(entry);
}

void Recorder::chooseMenuEntry(const QAction *entry)
{
    if (!entry->isEnabled() || entry->isSeparator() || entry->menu())
        return;
    flush();
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *const window : windows) {
        const QString path = pathOfMenuEntry(*window, entry);
        if (path.isEmpty())
            continue;
        const QString name = nameOfMenuEntry(*entry);
        if (window != &m_mainWindow) {
            m_transcript.add(window, QStringLiteral("menu ") + quoted(path));
        } else if (m_launches.contains(name)) {
            int number = 1;
            for (const QAction *const other : qobject_cast<QMenu *>(entry->parent())->actions()) {
                if (other == entry)
                    break;
                number += nameOfMenuEntry(*other) == name ? 1 : 0;
            }
            m_transcript.addLaunch(name, number, m_launches.count(name) == 1);
        }
    }
}

void Recorder::keyPressed(QWidget *widget, const QKeyEvent &event)
{
    if (const auto *const menu = qobject_cast<QMenu *>(widget)) {
        const bool isChoice = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
        if (const QAction *const entry = isChoice ? menu->activeAction() : entryOfLetter(*menu, event.text()))
            chooseMenuEntry(entry);
        return;
    }
    // Keys that nobody takes go on to the widgets around.
    if (widget != QApplication::focusWidget() || isModifierKey(event.key()) || menuOfPopup(widget))
        return;
    auto *const menu = qobject_cast<QComboBox *>(widget);
    auto *const text = qobject_cast<QPlainTextEdit *>(widget);
    const bool isField = qobject_cast<QLineEdit *>(widget) || qobject_cast<QAbstractSpinBox *>(widget);
    const bool isStep = qobject_cast<QAbstractSpinBox *>(widget) && stepsValue(event.key());
    if (menu && !leavesField(event.key()))
        keepPlaceFor(menu);
    else if (text && (!leavesField(event.key()) || event.key() == Qt::Key_Return))
        keyPressedInText(text, event);
    else if (!isField || leavesField(event.key()) || isStep)
        writeKey(widget->window(), textOfKey({static_cast<Qt::Key>(event.key()), event.modifiers()}));
}

void Recorder::keyPressedInText(QPlainTextEdit *text, const QKeyEvent &event)
{
    if (m_cursorKnownIn != text) {
        const QTextCursor cursor = text->textCursor();
        const QString end = cursor.hasSelection() ? placeOf(*text, cursor.position()) : QString();
        write("cursor", text, Kinds::MultiLineText, placeOf(*text, cursor.anchor()) + end);
        m_cursorKnownIn = text;
    }
    const bool isTyped = !event.text().isEmpty() && event.text()[0].isPrint() &&
                         !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (!isTyped || text->isReadOnly()) {
        writeKey(text->window(), textOfKey({static_cast<Qt::Key>(event.key()), event.modifiers()}));
        return;
    }
    // Letter by letter is one step.
    const QString step = QStringLiteral("insert %1 \"").arg(nameFor(*text, *text->window(), Kinds::Field));
    const QString letters = quoted(event.text()).mid(1);
    const QString last = m_transcript.last();
    if (last.startsWith(step))
        m_transcript.replace(m_transcript.size() - 1, last.left(last.size() - 1) + letters);
    else
        write("insert", text, Kinds::Field, QStringLiteral(" \"") + letters);
}

void Recorder::wheelTurned(QWidget *widget, int angle)
{
    const bool turns = qobject_cast<QComboBox *>(widget) || qobject_cast<QSlider *>(widget) ||
                       qobject_cast<QAbstractSpinBox *>(widget);
    const int notches = angle / QWheelEvent::DefaultDeltasPerStep;
    if (turns && notches != 0 && widget->isEnabled())
        write("wheel", widget, Kinds::Control,
              (notches > 0 ? QStringLiteral(" up %1") : QStringLiteral(" down %1")).arg(std::abs(notches)));
}

void Recorder::fieldEdited()
{
    auto *const field = qobject_cast<QLineEdit *>(sender());
    if (m_edited && m_edited != field)
        flush();
    m_edited = field;
}

void Recorder::keepPlaceFor(QComboBox *menu)
{
    flush();
    m_openMenu = menu;
    m_menuPrefix = m_transcript.turnTo(menu->window());
    m_menuPlace = m_transcript.size();
    m_wasOpened = false;
}

void Recorder::itemActivated(int index)
{
    auto *const menu = qobject_cast<QComboBox *>(sender());
    if (menu != m_openMenu)
        return;
    m_openMenu = nullptr;
    const QString name = nameFor(*menu, *menu->window(), Kinds::Choice);
    const QString item = nameForItem(index, itemsOf(*static_cast<QObject *>(menu)));
    m_transcript.insert(m_menuPlace, m_menuPrefix + QStringLiteral("choose %1 %2").arg(name, item));
}

void Recorder::scaleMoved(int action)
{
    auto *const scale = qobject_cast<QSlider *>(sender());
    if (scale != m_scale)
        return;
    if (action == QSlider::SliderMove) {
        const QString value = QStringLiteral(" %1").arg(scale->sliderPosition());
        if (m_dragPlace < 0) {
            write("drag", scale, Kinds::Scale, value);
            m_dragPlace = m_transcript.size() - 1;
        } else if (m_dragPlace == m_transcript.size() - 1) {
            m_transcript.replace(m_dragPlace, m_transcript.last() + value);
        }
    } else if (action == QSlider::SliderPageStepAdd || action == QSlider::SliderPageStepSub) {
        write("page", scale, Kinds::Scale,
              action == QSlider::SliderPageStepAdd ? QStringLiteral(" up") : QStringLiteral(" down"));
    }
}

void Recorder::write(const char *verb, QObject *object, const Kind &kind, const QString &rest)
{
    flush();
    QWidget *const window = widgetsOf(object).value(0)->window();
    const QString name = nameFor(*object, *window, kind);
    m_transcript.add(window, QStringLiteral("%1 %2%3").arg(QString::fromLatin1(verb), name, rest));
}

void Recorder::writeKey(QWidget *window, const QString &text)
{
    flush();
    if (window != &m_mainWindow && !text.isEmpty())
        m_transcript.add(window, QStringLiteral("key ") + quoted(text));
}

void Recorder::flush()
{
    if (m_openMenu && !m_openMenu->view()->isVisible()) {
        QComboBox *const menu = m_openMenu;
        m_openMenu.clear();
        const QString name = nameFor(*menu, *menu->window(), Kinds::Control);
        m_transcript.insert(m_menuPlace, m_menuPrefix + QStringLiteral("click %1").arg(name));
        if (m_wasOpened)
            m_transcript.insert(m_menuPlace + 1, QStringLiteral("key Escape"));
    }
    if (!m_edited)
        return;
    QWidget *const field = wholeAs<QWidget>(m_edited);
    const QString text = m_edited->text();
    m_edited = nullptr;
    const QString name = nameFor(*field, *field->window(), Kinds::Field);
    if (m_transcript.last() == QStringLiteral("click ") + name)
        m_transcript.remove(m_transcript.size() - 1);
    m_transcript.add(field->window(), QStringLiteral("type %1 %2").arg(name, quoted(text)));
}
