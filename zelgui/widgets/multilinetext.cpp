// SPDX-License-Identifier: MIT
#include "widgets/multilinetext.h"

#include "core/callback.h"
#include "core/endedpopups.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"

#include <QEvent>
#include <QTextDocument>

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

bool ZelGUIText::event(QEvent *event)
{
    const bool isHandled = QPlainTextEdit::event(event);
    if (event->type() == QEvent::Polish || event->type() == QEvent::StyleChange)
        allowBarsByRoom(*this);
    return isHandled;
}

void ZelGUIText::onTextChanged()
{
    // The whole text is gathered only for who wants to hear of it.
    if (!m_callback || ZelGUIWidgetRepository::instance()->callbacksSuppressed())
        return;
    // The change may have been chosen in the text's own menu.
    const EndedPopups endedPopups;
    askWhetherAccepted(this, m_callback, textOf(*this));
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
    withWidget<QPlainTextEdit>(textId, [text](QPlainTextEdit &edit) {
        const CallbackSuppressor suppressor;
        edit.moveCursor(QTextCursor::End);
        edit.insertPlainText(fromUtf8(text));
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
