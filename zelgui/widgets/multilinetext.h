// SPDX-License-Identifier: MIT
#ifndef ZELGUI_WIDGETS_MULTILINETEXT_H
#define ZELGUI_WIDGETS_MULTILINETEXT_H

#include <zelgui/zelgui.h>

#include <QPlainTextEdit>

namespace orvane::zelgui {

/// Text of several lines, which reports the whole of it at every change that the user makes.
class ZelGUIText : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// Position and size are in font units.
    ZelGUIText(QWidget *parent, int x, int y, int width, int height, bool readOnly, ZelGUITextCallback callback);

protected:
    bool event(QEvent *event) override;

private Q_SLOTS:
    void onTextChanged();

private:
    ZelGUITextCallback m_callback;
};

} // namespace orvane::zelgui

#endif
