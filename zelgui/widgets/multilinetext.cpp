// SPDX-License-Identifier: MIT
#include "widgets/multilinetext.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"

#include <QEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextDocument>

#include <utility>

namespace orvane::zelgui {

namespace {

/// The text as it was put in. The toolkit's own answer has blanks for no-break spaces, and line feeds for U+2028.
QString textOf(const QPlainTextEdit &edit)
{
    QString text = edit.document()->toRawText();
    text.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    return text;
}

void useFixedPitchFont(QWidget &widget)
{
    QFont font(QStringLiteral("Courier"), -1, -1, false);
    // Where there is no Courier, let it be another font of fixed pitch.
    font.setStyleHint(QFont::Monospace, QFont::PreferDefault);
    widget.setFont(font);
}

} // namespace

ZelGUIText::ZelGUIText(QWidget *parent, int x, int y, int width, int height, bool readOnly, ZelGUITextCallback callback)
    : QPlainTextEdit(parent), m_callback(callback)
{
    placeWidget(this, x, y, width, height);
    connect(this, &QPlainTextEdit::textChanged, this, &ZelGUIText::onTextChanged);
    setReadOnly(readOnly);
}

/// Lets the toolkit handle an event of the text, then does what had to wait until it is done.
template <typename Handle>
bool ZelGUIText::handle(Handle &&byToolkit)
{
    const QPointer<ZelGUIText> guard(this);
    ++m_eventsInProgress;
    const bool isHandled = byToolkit();
    if (!guard || --m_eventsInProgress > 0)
        return isHandled;
    if (isVisible() && std::exchange(m_isCursorToBeSeen, false)) {
        ensureCursorVisible();
        // Scroll bars may come or go by it, and the lines are laid out anew.
        QMetaObject::invokeMethod(this, &ZelGUIText::ensureCursorVisible, Qt::QueuedConnection);
    }
    reportIfChanged();
    return isHandled;
}

bool ZelGUIText::event(QEvent *event)
{
    return handle([=] {
        const bool isHandled = QPlainTextEdit::event(event);
        if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange)
            allowBarsByWidth();
        return isHandled;
    });
}

/// Wrapped text that is narrower than its vertical bar would show and hide the bar for ever. What style sheets make of
/// the text and its bars is known only now, so this follows each change of style.
void ZelGUIText::allowBarsByWidth()
{
    const int room = maximumWidth() - verticalScrollBar()->sizeHint().width() - 2 * frameWidth();
    const Qt::ScrollBarPolicy policy = room > 0 ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    setVerticalScrollBarPolicy(policy);
    setHorizontalScrollBarPolicy(policy);
}

bool ZelGUIText::viewportEvent(QEvent *event)
{
    return handle([=] { return QPlainTextEdit::viewportEvent(event); });
}

/// The toolkit's own would look at once where the cursor is now. But the lines are laid out only after a drop, and the
/// toolkit doesn't survive the look at a line that isn't.
void ZelGUIText::insertFromMimeData(const QMimeData *source)
{
    if (isReadOnly())
        return;
    insertPlainText(source->text());
    showCursor();
}

/// Lines are laid out only when the text is visible, and not yet inside a drop.
void ZelGUIText::showCursor()
{
    m_isCursorToBeSeen = m_eventsInProgress > 0 || !isVisible();
    if (!m_isCursorToBeSeen)
        ensureCursorVisible();
}

void ZelGUIText::onTextChanged()
{
    // The whole text is gathered only for who wants to hear of it.
    if (!m_callback || ZelGUIWidgetRepository::instance()->callbacksSuppressed())
        return;
    if (m_eventsInProgress > 0)
        m_isChanged = true;
    else
        postReport();
}

void ZelGUIText::postReport()
{
    if (std::exchange(m_isReportPosted, true))
        return;
    // Comes as an event of the text's own, which ends with the report.
    const auto markChanged = [this] { m_isChanged = std::exchange(m_isReportPosted, false) || m_isChanged; };
    QMetaObject::invokeMethod(this, markChanged, Qt::QueuedConnection);
}

void ZelGUIText::reportIfChanged()
{
    if (m_isReporting || !std::exchange(m_isChanged, false))
        return;
    m_isReportPosted = false;
    m_isReporting = true;
    const QPointer<ZelGUIText> guard(this);
    askWhetherAccepted(this, m_callback, textOf(*this));
    if (!guard)
        return;
    m_isReporting = false;
    // The callback has waited for events, and the user has typed meanwhile.
    if (m_isChanged)
        postReport();
}

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUITextAdd(int parentId, int x, int y, int width, int height, ZelBoolean readOnly, ZelGUITextCallback callback)
{
    return addWidgetTo<ZelGUIText>(parentId, x, y, width, height, readOnly == 1, callback);
}

char *ZelGUITextGetString(int textId)
{
    return withWidget<QPlainTextEdit>(textId, static_cast<char *>(nullptr),
                                      [](const QPlainTextEdit &edit) { return allocHostString(textOf(edit)); });
}

void ZelGUITextSetString(int textId, const char *text)
{
    withWidget<QPlainTextEdit>(textId, [text](QPlainTextEdit &edit) {
        const CallbackSuppressor suppressor;
        edit.setPlainText(fromUtf8(text));
    });
}

void ZelGUITextAppendString(int textId, const char *text)
{
    withWidget<ZelGUIText>(textId, [text](ZelGUIText &edit) {
        const CallbackSuppressor suppressor;
        edit.moveCursor(QTextCursor::End);
        edit.insertPlainText(fromUtf8(text));
        edit.showCursor();
    });
}

void ZelGUITextAllowWordWrap(int textId, ZelBoolean allow)
{
    withWidget<QPlainTextEdit>(textId, [allow](QPlainTextEdit &edit) {
        edit.setWordWrapMode(allow ? QTextOption::WordWrap : QTextOption::NoWrap);
    });
}

void ZelGUITextUseFixedPitchFont(int textId, ZelBoolean use)
{
    withWidget<QPlainTextEdit>(textId, [use](QPlainTextEdit &edit) {
        if (use)
            useFixedPitchFont(edit);
        else
            edit.setFont(edit.parentWidget()->font());
    });
}
