// SPDX-License-Identifier: MIT
#include "support/rows.h"
#include "support/zeltest.h"

#include <QPushButton>

using namespace Callback;

namespace {

constexpr unsigned char kRedBlue[] = {255, 0, 0, 0, 0, 255};
/// Magenta, and its next neighbours in each component.
constexpr unsigned char kKeys[] = {255, 0, 255, 254, 0, 255, 255, 1, 255, 255, 0, 254};

QImage picture(const QAbstractButton *button)
{
    return button->icon().pixmap(button->iconSize()).toImage().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

/// Buttons and toggles with a picture.
class tst_BitmapButton : public ZelTest
{
    Q_OBJECT

private Q_SLOTS:
    void pixels_data();
    void pixels();
    void noPicture_data();
    void noPicture();
    void reports();
};

void tst_BitmapButton::pixels_data()
{
    const Rows<QSize, QByteArray, int, QVector<QRgb>> row("size", "data", "useKey", "pixels");
    const QByteArray redBlue(reinterpret_cast<const char *>(kRedBlue), sizeof kRedBlue);
    const QByteArray keys(reinterpret_cast<const char *>(kKeys), sizeof kKeys);
    row("a row", {2, 1}, redBlue, 0, {0xffff0000, 0xff0000ff});
    row("a column", {1, 2}, redBlue, 0, {0xffff0000, 0xff0000ff});
    row("only the key is transparent", {2, 2}, keys, 1, {0x00000000, 0xfffe00ff, 0xffff01ff, 0xffff00fe});
    row("key not used", {2, 2}, keys, 0, {0xffff00ff, 0xfffe00ff, 0xffff01ff, 0xffff00fe});
    row("key used by 1 only", {2, 2}, keys, 2, {0xffff00ff, 0xfffe00ff, 0xffff01ff, 0xffff00fe});
}

void tst_BitmapButton::pixels()
{
    QFETCH(QSize, size);
    QFETCH(QByteArray, data);
    QFETCH(int, useKey);
    QFETCH(QVector<QRgb>, pixels);
    auto *const bytes = reinterpret_cast<unsigned char *>(data.data());
    const int dialog = createModal();
    const int id = ZelGUIBitmapButtonAdd(dialog, 100, 100, 1000, 500, size.width(), size.height(), bytes,
                                         static_cast<ZelBoolean>(useKey), 255, 0, 255, nullptr);
    data.fill('\x55');
    const QPushButton *const button = object<QPushButton>(id);
    QCOMPARE(button->iconSize(), size);
    const QImage image = picture(button);
    QCOMPARE(image.size(), size);
    for (int i = 0; i < pixels.size(); ++i)
        QCOMPARE(image.pixel(i % size.width(), i / size.width()), pixels[i]);

    const int toggle = ZelGUIToggleAdd(dialog, 100, 100, 1000, 500, "", nullptr);
    QCOMPARE(button->size(), object<QWidget>(toggle)->size());
    QVERIFY(button->autoDefault());
}

void tst_BitmapButton::noPicture_data()
{
    const Rows<QSize, bool> row("size", "hasData");
    row("no data", {2, 1}, false);
    row("no width", {0, 1}, true);
    row("negative height", {2, -1}, true);
    row("too large for any memory", {1 << 30, 1 << 30}, true);
}

void tst_BitmapButton::noPicture()
{
    QFETCH(QSize, size);
    QFETCH(bool, hasData);
    const int id = ZelGUIBitmapToggleAdd(createModal(), 100, 100, 1000, 500, size.width(), size.height(),
                                         hasData ? kRedBlue : nullptr, 0, 0, 0, 0, nullptr);
    QVERIFY(object<QPushButton>(id)->icon().isNull());
    ZelGUIToggleSet(id, 1);
    QCOMPARE(ZelGUIToggleGet(id), 1);
}

void tst_BitmapButton::reports()
{
    const int dialog = launchModeless();
    const int button = ZelGUIBitmapButtonAdd(dialog, 100, 100, 500, 200, 2, 1, kRedBlue, 0, 0, 0, 0, report<Push>);
    const int toggle =
        ZelGUIBitmapToggleAdd(dialog, 1000, 100, 500, 200, 2, 1, kRedBlue, 0, 0, 0, 0, reportInt<Toggle>);
    QTest::mouseClick(shown<QPushButton>(button), Qt::LeftButton);
    QTest::mouseClick(shown<QPushButton>(toggle), Qt::LeftButton);
    QCOMPARE(ZelGUIToggleGet(toggle), 1);
    ZelGUIToggleSet(toggle, 0);
    ZelGUIToggleSet(toggle, 1);
    QTest::keyClick(object<QWidget>(toggle), Qt::Key_Space);
    QCOMPARE(log(), QStringList({"Push", "Toggle 1", "Toggle 0"}));
}

ZELTEST_MAIN(tst_BitmapButton)
#include "tst_bitmapbutton.moc"
