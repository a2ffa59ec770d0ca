// SPDX-License-Identifier: MIT
#include "baredialog.h"

#include "mixeddialog.h"

namespace bench {

namespace {

// Classes that a host can tell from the toolkit's by their names.
class Field : public QLineEdit
{
    Q_OBJECT
public:
    using QLineEdit::QLineEdit;
};

class Toggle : public QCheckBox
{
    Q_OBJECT
public:
    using QCheckBox::QCheckBox;
};

class Button : public QPushButton
{
    Q_OBJECT
public:
    using QPushButton::QPushButton;
};

class Menu : public QComboBox
{
    Q_OBJECT
public:
    using QComboBox::QComboBox;
};

class List : public QListWidget
{
    Q_OBJECT
public:
    using QListWidget::QListWidget;
};

class Slider : public QSlider
{
    Q_OBJECT
public:
    using QSlider::QSlider;
};

class Group : public QButtonGroup
{
    Q_OBJECT
public:
    using QButtonGroup::QButtonGroup;
};

/// As the library promises.
struct Full
{
    static constexpr bool isFull = true;
    using Field = bench::Field;
    using Toggle = bench::Toggle;
    using Button = bench::Button;
    using Menu = bench::Menu;
    using List = bench::List;
    using Slider = bench::Slider;
    using Group = bench::Group;
};

} // namespace

QDialog *createFullBareDialog()
{
    return createFilled<Full>();
}

} // namespace bench

#include "fullbaredialog.moc"
