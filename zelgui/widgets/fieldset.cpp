// SPDX-License-Identifier: MIT
#include "core/entrypoint.h"
#include "core/text.h"
#include "util/setstring.h"

#include <zelgui/zelgui.h>

#include <QLineEdit>

using namespace orvane::zelgui;

ZelBoolean ZelGUITextFieldGetSet(int fieldId, IndexSet *set)
{
    return withWidget<QLineEdit>(fieldId, ZelBoolean{0}, [set](const QLineEdit &field) -> ZelBoolean {
        const QString text = field.text();
        IndexSet members = nullptr;
        const bool isSet = stringToSet(text.toUtf8().constData(), &members, text.contains(QLatin1Char('[')));
        if (set)
            *set = members;
        else if (members)
            ZelUtilSetDealloc(&members);
        return isSet;
    });
}

void ZelGUITextFieldSetSet(int fieldId, IndexSet set, ZelBoolean includeBrackets)
{
    withWidget<QLineEdit>(fieldId, [=](QLineEdit &field) {
        char *text = nullptr;
        // What the field would cut would read as another set.
        if (!setToString(set, includeBrackets != 0, static_cast<std::size_t>(field.maxLength()), &text))
            return;
        field.setText(fromLatin1(text));
        if (text)
            ZelUtilStringDealloc(&text);
    });
}
