// SPDX-License-Identifier: MIT
#include "baredialog.h"

#include "mixeddialog.h"

#include <QApplication>
#include <QEvent>

namespace bench {

namespace {

/// What anyone would use.
struct Lean
{
    static constexpr bool isFull = false;
    using Field = QLineEdit;
    using Toggle = QCheckBox;
    using Button = QPushButton;
    using Menu = QComboBox;
    using List = QListWidget;
    using Slider = QSlider;
    using Group = QButtonGroup;
};

/// Notices that a window has been drawn.
class PaintWatch : public QObject
{
public:
    bool isPainted = false;
    bool eventFilter(QObject *, QEvent *event) override
    {
        isPainted = isPainted || event->type() == QEvent::Paint;
        return false;
    }
};

} // namespace

QDialog *createBareDialog()
{
    return createFilled<Lean>();
}

void showUntilPainted(QDialog &dialog)
{
    PaintWatch watch;
    dialog.installEventFilter(&watch);
    dialog.show();
    while (!watch.isPainted)
        QApplication::processEvents();
}

} // namespace bench
