// SPDX-License-Identifier: MIT
#include "session.h"

#include "addonloader.h"
#include "interfaceloader.h"
#include "messages.h"
#include "watchdog.h"

#include <QApplication>
#include <QStyleFactory>

using orvane::host::AddOn;

namespace {

bool applySettings(const Options &options)
{
    if (!options.style.isEmpty() && !QApplication::setStyle(options.style)) {
        const QString all = QStyleFactory::keys().join(QLatin1String(", "));
        complain(QStringLiteral("--style %1: there is no such style; there are %2").arg(options.style, all));
        return false;
    }
    if (options.font) {
        QFont font(options.font->family);
        font.setPointSizeF(options.font->points);
        QApplication::setFont(font);
    }
    if (options.dotsPerInch)
        orvane::host::overrideDotsPerInch(options.dotsPerInch->horizontal, options.dotsPerInch->vertical);
    orvane::host::setBatchModeActive(options.batch);
    return true;
}

/// False, after a message, if something that could be called `name` is not registered.
bool appendEntries(const QString &name, const std::vector<AddOn> &registered, std::vector<AddOn> &entries)
{
    QStringList names;
    bool found = false;
    for (const AddOn &addOn : registered) {
        const QString registeredName = QString::fromStdString(addOn.name);
        names.append(QStringLiteral("\"%1\"").arg(registeredName));
        if (registeredName == name) {
            entries.push_back(addOn);
            found = true;
        }
    }
    if (!found) {
        const QString all = names.isEmpty() ? QStringLiteral("nothing") : names.join(QLatin1String(", "));
        complain(QStringLiteral("--launch: no add-on has registered \"%1\"; there is %2").arg(name, all));
    }
    return found;
}

} // namespace

bool openSession(const Options &options, Session &session)
{
    if (!applySettings(options))
        return false;
    // Before the add-ons are loaded: they may look for it.
    if (!options.batch)
        session.window = std::make_unique<HostWindow>();
    orvane::host::requestObservation({options.trace, options.strict});
    QString failure = loadInterface(options.trace || options.strict);
    std::optional<Watchdog> watchdog;
    if (drawsDialogs(options) || !options.scriptFile.isEmpty())
        watchdog.emplace(options.timeoutSeconds.value_or(DefaultTimeoutSeconds));
    for (int i = 0; failure.isEmpty() && i < options.addOnFiles.size(); ++i) {
        const QString &file = options.addOnFiles[i];
        if (watchdog) {
            watchdog->watch(file.toStdString());
            watchdog->remark(": it is still in ZelAddOnInit");
        }
        failure = loadAddOn(file);
    }
    watchdog.reset();
    if (!failure.isEmpty()) {
        complain(failure);
        return false;
    }
    session.registered = orvane::host::registeredAddOns();
    for (const QString &name : options.launches) {
        if (!appendEntries(name, session.registered, session.chosen))
            return false;
    }
    if (session.window) {
        session.window->setAddOns(session.registered);
        session.window->show();
    }
    return true;
}
