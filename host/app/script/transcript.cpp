// SPDX-License-Identifier: MIT
#include "transcript.h"

#include "../files.h"
#include "../messages.h"
#include "windows.h"
#include "words.h"

#include <algorithm>
#include <utility>

namespace {

void forget(std::vector<QPointer<QWidget>> &windows, const QWidget *window)
{
    const auto isGone = [window](const QPointer<QWidget> &one) { return !one || one == window; };
    windows.erase(std::remove_if(windows.begin(), windows.end(), isGone), windows.end());
}

} // namespace

bool Transcript::write()
{
    const QByteArray text = m_lines.join(QLatin1Char('\n')).toUtf8();
    const QString failure = writeFile(m_file, m_lines.isEmpty() ? text : text + '\n');
    if (!failure.isEmpty() && !std::exchange(m_hasFailed, true))
        complain(QStringLiteral("--record %1: %2").arg(m_file, failure));
    return failure.isEmpty();
}

void Transcript::addLaunch(const QString &name, int number, bool isOnlyOne)
{
    QString line = QStringLiteral("launch ") + quoted(name);
    if (!isOnlyOne)
        line += QStringLiteral(" %1").arg(number);
    m_lines.append(line);
    m_isLaunching = true;
    write();
}

void Transcript::add(QWidget *window, const QString &step)
{
    const QString prefix = turnTo(window);
    m_lines.append(prefix + step);
    write();
}

QString Transcript::turnTo(QWidget *window)
{
    QString prefix;
    if (window->isWindow() && !isExpected(window)) {
        m_lines.append(QStringLiteral("expect %1 %2")
                           .arg(isMessage(*window) ? QStringLiteral("message") : QStringLiteral("dialog"),
                                quoted(textOfWindow(*window))));
        m_expected.emplace_back(window);
    } else if (window != top()) {
        prefix = QStringLiteral("in %1 ").arg(quoted(window->windowTitle()));
    }
    windowShown(window);
    m_isLaunching = false;
    return prefix;
}

void Transcript::insert(int index, const QString &step)
{
    m_lines.insert(index, step);
    write();
}

void Transcript::replace(int index, const QString &step)
{
    m_lines[index] = step;
    write();
}

void Transcript::remove(int index)
{
    m_lines.removeAt(index);
    write();
}

void Transcript::windowShown(QWidget *window)
{
    forget(m_order, window);
    m_order.emplace_back(window);
    if (m_isLaunching && !isMessage(*window)) {
        m_isLaunching = false;
        m_expected.emplace_back(window);
    }
}

void Transcript::windowHidden(QWidget *window)
{
    forget(m_order, window);
}

bool Transcript::isExpected(const QWidget *window) const
{
    return std::find(m_expected.begin(), m_expected.end(), window) != m_expected.end();
}

QWidget *Transcript::top() const
{
    const auto found = std::find_if(m_order.rbegin(), m_order.rend(),
                                    [](const QPointer<QWidget> &one) { return one && !blockerOf(*one); });
    return found == m_order.rend() ? nullptr : found->data();
}
