// SPDX-License-Identifier: MIT
#include "hostwindow.h"

#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPainterPath>
#include <QStatusBar>

#include <cmath>

namespace {

/// Stands for the data that a host of this kind shows: a damped oscillation over its grid.
class Plot : public QWidget
{
public:
    using QWidget::QWidget;

    QSize sizeHint() const override { return {640, 400}; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().base());
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF area = QRectF(rect()).adjusted(20, 20, -20, -20);

        painter.setPen(palette().color(QPalette::Midlight));
        const int lines = 10;
        for (int i = 0; i <= lines; ++i) {
            const double x = area.left() + area.width() * i / lines;
            const double y = area.top() + area.height() * i / lines;
            painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
            painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        }

        QPainterPath curve;
        const int steps = 400;
        for (int i = 0; i <= steps; ++i) {
            const double t = double(i) / steps;
            const double value = std::exp(-3.0 * t) * std::cos(30.0 * t);
            const QPointF point(area.left() + area.width() * t, area.center().y() - area.height() / 2.0 * value);
            if (i == 0)
                curve.moveTo(point);
            else
                curve.lineTo(point);
        }
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
        painter.drawPath(curve);
    }
};

} // namespace

HostWindow::HostWindow(QWidget *parent) : QMainWindow(parent)
{
    setWindowTitle(QStringLiteral("zelhost"));
    setCentralWidget(new Plot(this));

    QMenu *fileMenu = menuBar()->addMenu(QStringLiteral("&File"));
    fileMenu->addAction(QStringLiteral("&Quit"), this, &QWidget::close)->setShortcut(QKeySequence::Quit);
    m_addOnsMenu = menuBar()->addMenu(QStringLiteral("&Add-Ons"));
    m_addOnsMenu->setToolTipsVisible(true);
    statusBar();
}

void HostWindow::setAddOns(const std::vector<orvane::host::AddOn> &addOns)
{
    for (const orvane::host::AddOn &addOn : addOns) {
        // An ampersand in a name is no mnemonic.
        const QString name = QString::fromStdString(addOn.name).replace(QLatin1Char('&'), QLatin1String("&&"));
        const QString summary = QString::fromStdString(addOn.summary);
        QAction *action = m_addOnsMenu->addAction(name);
        action->setStatusTip(summary);
        action->setToolTip(summary);
        connect(action, &QAction::triggered, this, [launch = addOn.launch] { launch(); });
    }
    statusBar()->showMessage(QStringLiteral("Entries of add-ons: %1").arg(addOns.size()));
}
