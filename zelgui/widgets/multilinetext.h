// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_MULTILINETEXT_H
#define ZELGUI_WIDGETS_MULTILINETEXT_H

#include <zelgui/zelgui.h>

#include <QPlainTextEdit>

namespace orvane::zelgui {

/// Text of several lines, which reports the whole of it at every change that the user makes.
///
/// The report comes when the toolkit is done with the event that the change came by, and once for each event: the
/// callback may set the text, and the toolkit would go on with what it knew of the old one. A change that came by no
/// event of the text's own, chosen in its menu or made by assistive technology, is reported from the event loop.
class ZelGUIText : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// Position and size are in font units.
    ZelGUIText(QWidget *parent, int x, int y, int width, int height, bool readOnly, ZelGUITextCallback callback);

    /// Scrolls to the cursor, now or when the text is shown.
    void showCursor();

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void insertFromMimeData(const QMimeData *source) override;

private Q_SLOTS:
    void onTextChanged();

private:
    template <typename Handle>
    bool handle(Handle &&byToolkit);
    void allowBarsByWidth();
    void postReport();
    void reportIfChanged();

    ZelGUITextCallback m_callback;
    /// How many of the text's events the toolkit is handling, one inside the other.
    int m_eventsInProgress = 0;
    /// Whether the text has changed since the last report, by an event that is over when the report is made.
    bool m_isChanged = false;
    bool m_isReportPosted = false;
    bool m_isReporting = false;
    bool m_isCursorToBeSeen = false;
};

} // namespace orvane::zelgui

#endif
