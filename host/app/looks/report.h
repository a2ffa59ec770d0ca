// SPDX-License-Identifier: MIT
#ifndef ZELHOST_LOOKS_REPORT_H
#define ZELHOST_LOOKS_REPORT_H

#include "finding.h"

#include <QString>

#include <vector>

/// How one page of a dialog looks under one combination of style, font and resolution.
struct Look
{
    QString dialog;
    /// Titles or numbers of the pages that are shown; empty for a dialog without pages.
    QString page;
    /// File of its picture.
    QString picture;
    std::vector<Finding> findings;
};

/// "Contour levels, page Lines", for people.
QString titleOf(const Look &look);
/// "has text that is too wide by 3 pixels", for people.
QString problemOf(const Finding &finding);

/// Writes looks to a file for another process to read; false if that fails.
bool writeReport(const QString &file, const std::vector<Look> &looks);
/// Appends what was written; false if the file isn't a report.
bool readReport(const QString &file, std::vector<Look> &looks);

#endif
