// SPDX-License-Identifier: MIT
#include "widgets/radiobox.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"

#include <QRadioButton>

#include <algorithm>
#include <limits>

namespace orvane::zelgui {

namespace {

QStringList textsOf(const ZelGUIRadioBox::Labels &labels)
{
    QStringList texts;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (i < 2 || labels[i])
            texts << fromLatin1(labels[i]);
    }
    return texts;
}

/// The y of the button that has `above` others above it; a column that leaves the range of int ends at its limit.
int columnY(int y, int above, int step)
{
    using Limits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp<qint64>(y + qint64{above} * step, Limits::min(), Limits::max()));
}

} // namespace

ZelGUIRadioBox::ZelGUIRadioBox(QWidget *parent, int x, int y, int width, int height, const Labels &labels,
                               ZelGUIIntCallback callback)
    : QButtonGroup(parent), m_callback(callback)
{
    const QStringList texts = textsOf(labels);
    const int step = height / static_cast<int>(texts.size());
    int above = 0;
    for (const QString &text : texts) {
        auto *const button = new QRadioButton(parent);
        placeWidget(button, x, columnY(y, above, step), width, step);
        button->setText(text);
        addButton(button, ++above);
    }
    button(1)->setChecked(true);
    connect(this, &QButtonGroup::idPressed, this, [this] { m_isPressed = true; });
    connect(this, &QButtonGroup::idReleased, this, [this] { m_isPressed = false; });
    connect(this, &QButtonGroup::idToggled, this, &ZelGUIRadioBox::onButtonToggled);
    connect(this, &QButtonGroup::idClicked, this, &ZelGUIRadioBox::onButtonClicked);
}

void ZelGUIRadioBox::onButtonClicked(int id)
{
    reportChange(this, m_callback, id);
}

/// Assistive technology switches a button without a click.
void ZelGUIRadioBox::onButtonToggled(int id, bool isChecked)
{
    if (isChecked && !m_isPressed)
        reportChange(this, m_callback, id);
}

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIRadioBoxAdd(int parentId, int x, int y, int width, int height, const char *label1, const char *label2,
                      const char *label3, const char *label4, const char *label5, ZelGUIIntCallback callback)
{
    return addWidgetTo<ZelGUIRadioBox>(parentId, x, y, width, height,
                                       ZelGUIRadioBox::Labels{label1, label2, label3, label4, label5}, callback);
}

int ZelGUIRadioBoxGetToggle(int radioBoxId)
{
    return withWidget<QButtonGroup>(radioBoxId, -1, [](const QButtonGroup &group) {
        const auto place = group.buttons().indexOf(group.checkedButton());
        return place < 0 ? -1 : static_cast<int>(place) + 1;
    });
}

void ZelGUIRadioBoxSetToggle(int radioBoxId, int position)
{
    withWidget<QButtonGroup>(radioBoxId, [position](const QButtonGroup &group) {
        const auto buttons = group.buttons();
        if (position < 1 || position > buttons.size())
            return;
        const CallbackSuppressor suppressor;
        buttons[position - 1]->setChecked(true);
    });
}
