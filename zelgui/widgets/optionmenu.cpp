// SPDX-License-Identifier: MIT
#include "widgets/optionmenu.h"

#include "core/callback.h"
#include "core/entrypoint.h"
#include "core/placement.h"
#include "core/text.h"

#include <boost/algorithm/string/classification.hpp>
#include <boost/algorithm/string/split.hpp>

#include <vector>

namespace orvane::zelgui {

namespace {

QStringList splitItems(const char *itemList)
{
    std::vector<Characters> pieces;
    boost::split(pieces, itemList ? itemList : "", boost::is_any_of(","));
    QStringList items;
    items.reserve(int(pieces.size()));
    for (const Characters piece : pieces)
        items << fromTrimmedLatin1(piece);
    return items;
}

/// The toolkit's index for a position, which counts from 1; -1 for what can't be one.
int indexOf(int position)
{
    return position < 1 ? -1 : position - 1;
}

} // namespace

ZelGUIOptionMenu::ZelGUIOptionMenu(QWidget *parent, int x, int y, int width, int height, const char *itemList,
                                   ZelGUIIntCallback callback)
    : QComboBox(parent), m_callback(callback)
{
    placeWidget(this, x, y, width, height);
    addItems(splitItems(itemList));
    setCurrentIndex(0);
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &ZelGUIOptionMenu::onCurrentIndexChanged);
}

void ZelGUIOptionMenu::onCurrentIndexChanged(int index)
{
    if (index >= 0)
        reportChange(this, m_callback, index + 1);
}

} // namespace orvane::zelgui

using namespace orvane::zelgui;

int ZelGUIOptionMenuAdd(int parentId, int x, int y, int width, int height, const char *itemList,
                        ZelGUIIntCallback callback)
{
    return addWidgetTo<ZelGUIOptionMenu>(parentId, x, y, width, height, itemList, callback);
}

int ZelGUIOptionMenuGet(int menuId)
{
    return withWidget<QComboBox>(menuId, -1, [](const QComboBox &menu) { return menu.currentIndex() + 1; });
}

char *ZelGUIOptionMenuGetString(int menuId, int position)
{
    return withWidget<QComboBox>(menuId, static_cast<char *>(nullptr), [position](const QComboBox &menu) {
        return allocHostString(menu.itemText(indexOf(position)));
    });
}

int ZelGUIOptionMenuGetItemCount(int menuId)
{
    return withWidget<QComboBox>(menuId, -1, [](const QComboBox &menu) { return menu.count(); });
}

void ZelGUIOptionMenuSet(int menuId, int position)
{
    withWidget<QComboBox>(menuId, [position](QComboBox &menu) {
        const CallbackSuppressor suppressor;
        menu.setCurrentIndex(indexOf(position));
    });
}

int ZelGUIOptionMenuSetByString(int menuId, const char *text)
{
    return withWidget<QComboBox>(menuId, -1, [text](QComboBox &menu) {
        const int index = menu.findText(fromUtf8(text), Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (index < 0)
            return -1;
        const CallbackSuppressor suppressor;
        menu.setCurrentIndex(index);
        return index + 1;
    });
}

void ZelGUIOptionMenuAppendItem(int menuId, const char *text)
{
    withWidget<QComboBox>(menuId, [text](QComboBox &menu) {
        const CallbackSuppressor suppressor;
        menu.addItem(fromUtf8(text));
    });
}

void ZelGUIOptionMenuDeleteAllItems(int menuId)
{
    withWidget<QComboBox>(menuId, [](QComboBox &menu) {
        const CallbackSuppressor suppressor;
        menu.clear();
    });
}

void ZelGUIOptionMenuDeleteItemAtPos(int menuId, int position)
{
    withWidget<QComboBox>(menuId, [position](QComboBox &menu) {
        const CallbackSuppressor suppressor;
        menu.removeItem(indexOf(position));
    });
}
