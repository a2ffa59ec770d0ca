// SPDX-License-Identifier: MIT
// The picture of a bitmap button, in any size, with and without a transparent colour.
#include "fuzz/fuzzhost.h"
#include "fuzz/fuzzinput.h"

#include <zelgui/zelgui.h>

#include <QAbstractButton>
#include <QImage>

#include <vector>

using FuzzHost::require;

namespace {

struct Picture
{
    int width;
    int height;
    /// Exactly as many as the size asks for; none where the size is none, or too large to be made here.
    std::vector<unsigned char> bytes;
    bool isTransparent;
    unsigned char transparent[3];
};

Picture readPicture(FuzzInput &input)
{
    Picture picture = {};
    picture.width = input.number<int>();
    picture.height = input.number<int>();
    picture.isTransparent = input.byte() % 2 == 1;
    for (unsigned char &part : picture.transparent)
        part = input.byte();
    constexpr int kMostPixels = 40000;
    const bool isSized = picture.width > 0 && picture.height > 0 && picture.width <= kMostPixels / picture.height;
    picture.bytes.resize(isSized ? std::size_t(picture.width) * std::size_t(picture.height) * 3 : 0);
    for (unsigned char &part : picture.bytes)
        part = input.byte();
    return picture;
}

void compare(const Picture &picture, const QImage &shown)
{
    require(shown.width() == picture.width && shown.height() == picture.height, "a picture keeps its size");
    const unsigned char *rgb = picture.bytes.data();
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x, rgb += 3) {
            const bool isTransparent = picture.isTransparent && std::equal(rgb, rgb + 3, picture.transparent);
            const QRgb pixel = shown.pixel(x, y);
            require(isTransparent ? qAlpha(pixel) == 0 : pixel == qRgb(rgb[0], rgb[1], rgb[2]),
                    "a picture keeps its colours");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const FuzzDialog dialog;
    FuzzInput input(data, size);
    const Picture picture = readPicture(input);
    const unsigned char *const rgb = picture.bytes.empty() ? nullptr : picture.bytes.data();
    const auto [red, green, blue] = picture.transparent;
    const int push = ZelGUIBitmapButtonAdd(dialog.id(), 100, 100, 1000, 300, picture.width, picture.height, rgb,
                                           picture.isTransparent, red, green, blue, nullptr);
    const int toggle = ZelGUIBitmapToggleAdd(dialog.id(), 100, 500, 1000, 300, picture.width, picture.height, rgb,
                                             picture.isTransparent, red, green, blue, nullptr);
    for (const int id : {push, toggle}) {
        const auto *const button = FuzzHost::object<QAbstractButton>(id);
        require(button, "a button is made of any picture");
        const auto sizes = button->icon().availableSizes();
        require(sizes.isEmpty() == !rgb, "there is a picture where there is one to show");
        if (rgb)
            compare(picture, button->icon().pixmap(sizes.first()).toImage());
    }
    return 0;
}
