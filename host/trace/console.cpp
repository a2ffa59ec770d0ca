// SPDX-License-Identifier: MIT
#include "console.h"

#include <QString>

#include <cstdio>

namespace orvane::trace::console {

namespace {

bool lineIsOpen = false;

void put(const std::string &text)
{
    std::fputs(QString::fromStdString(text).toLocal8Bit().constData(), stderr);
    std::fflush(stderr);
}

} // namespace

void begin(const std::string &text)
{
    put(lineIsOpen ? "\n" + text : text);
    lineIsOpen = true;
}

void finish(const std::string &text)
{
    put(text + "\n");
    lineIsOpen = false;
}

bool isOpen()
{
    return lineIsOpen;
}

void write(const std::string &text)
{
    begin(text);
    finish({});
}

} // namespace orvane::trace::console
