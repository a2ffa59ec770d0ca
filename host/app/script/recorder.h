// SPDX-License-Identifier: MIT
#ifndef ZELHOST_SCRIPT_RECORDER_H
#define ZELHOST_SCRIPT_RECORDER_H

#include "finder.h"
#include "transcript.h"

#include <QEvent>
#include <QObject>

class QAbstractButton;
class QAbstractSpinBox;
class QAction;
class QComboBox;
class QKeyEvent;
class QLineEdit;
class QListView;
class QMouseEvent;
class QPlainTextEdit;
class QSlider;
class QTabBar;
class QWindow;

/// Writes down what the user does, as steps of a script.
///
/// Steps have to be written before an add-on is called, which may open a dialog and not return for long. So what an
/// event is about to do is told from the event, before it is delivered; and where only its outcome shows that, a place
/// is kept for the step.
class Recorder : public QObject
{
    Q_OBJECT

public:
    /// `launches` are the names in the host's menu.
    Recorder(const QString &file, QWidget &mainWindow, const QStringList &launches);
    ~Recorder() override;

    /// False if the file can't be written.
    bool start() { return m_transcript.write(); }
    bool hasFailed() const { return m_transcript.hasFailed(); }
    /// To be told before an entry is launched, unless that is done from the menu; `number` counts those of this name.
    void noteLaunch(const QString &name, int number);

    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void fieldEdited();
    void itemActivated(int index);
    void scaleMoved(int action);

private:
    void watchWidget(QWidget *widget);
    void widgetEvent(QWidget *widget, QEvent *event);
    void windowPressed(const QWindow *window, const QMouseEvent &event);
    void mousePressed(QWidget *widget, const QPoint &position, Qt::KeyboardModifiers modifiers);
    void mouseReleased(QWidget *widget, const QPoint &position);
    void rowsDraggedOver(QListView *list, const QPoint &position);
    void keyPressed(QWidget *widget, const QKeyEvent &event);
    void keyPressedInText(QPlainTextEdit *text, const QKeyEvent &event);
    void wheelTurned(QWidget *widget, int angle);

    void pressButton(QAbstractButton *button);
    void pressRow(QListView *list, const QPoint &position, Qt::KeyboardModifiers modifiers);
    void pressTab(QTabBar *bar, const QPoint &position);
    void chooseMenuEntry(const QAction *entry);
    void keepPlaceFor(QComboBox *menu);

    /// Writes a step about a widget; `rest` is what follows its name.
    void write(const char *verb, QObject *object, const Kind &kind, const QString &rest = QString());
    void writeKey(QWidget *window, const QString &text);
    /// Writes what has been waiting for more of the same.
    void flush();

    Transcript m_transcript;
    QWidget &m_mainWindow;
    const QStringList m_launches;
    /// Where the user has typed; the step follows when that is over.
    QPointer<QLineEdit> m_edited;
    /// The option menu that may be about to change, and where its step belongs and what that begins with.
    QPointer<QComboBox> m_openMenu;
    int m_menuPlace = 0;
    QString m_menuPrefix;
    bool m_wasOpened = false;
    /// The scale under the pressed mouse, and the step of its drag, or -1.
    QPointer<QSlider> m_scale;
    int m_dragPlace = -1;
    /// Whether the cursor is where playing will have it.
    QPointer<QPlainTextEdit> m_cursorKnownIn;
    /// The row under the pressed mouse.
    int m_row = -1;
    /// The step of the button that is held down, or -1.
    int m_pressPlace = -1;
};

#endif
