// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ShellDocs.h"

#include "hosts/cli/options/CommandLine.h"
#include "hosts/cli/options/Examples.h"

#include <QCoreApplication>

namespace BatchCli {

namespace {

QString Roff(const QString& text)
{
    QString escaped = text;
    escaped.replace(QLatin1Char('\\'), QStringLiteral("\\e"));
    escaped.replace(QLatin1Char('-'), QStringLiteral("\\-"));
    return escaped.startsWith(QLatin1Char('.')) || escaped.startsWith(QLatin1Char('\''))
               ? QStringLiteral("\\&") + escaped
               : escaped;
}

QString OptionEntry(const OptionInfo& option)
{
    QString names = QStringLiteral("\\fB%1\\fR").arg(Roff(option.name));
    if (!option.shortName.isEmpty()) {
        names.prepend(QStringLiteral("\\fB%1\\fR, ").arg(Roff(option.shortName)));
    }
    if (!option.valueName.isEmpty()) {
        names += QStringLiteral(" \\fI%1\\fR").arg(Roff(option.valueName));
    }
    return QStringLiteral(".TP\n%1\n%2.\n").arg(names, Roff(FullHelp(option)));
}

/// An option that several commands share is described under the first of them only.
QString CommandSections()
{
    QString text;
    QStringList described;
    for (const CommandInfo& command : Commands()) {
        text += QStringLiteral(".SS velkora\\-batch %1 %2\n%3.\n")
                    .arg(command.name, Roff(command.inputs), Roff(command.help));
        QString group;
        int known = 0;
        for (const OptionInfo& option : command.options) {
            const QString entry = OptionEntry(option);
            if (described.contains(entry)) {
                ++known;
                continue;
            }
            described.append(entry);
            if (option.group != group) {
                group = option.group;
                text += QStringLiteral(".PP\n%1:\n").arg(Roff(group));
            }
            text += entry;
        }
        if (known > 0) {
            text += QStringLiteral(".PP\nIt also takes %1 of the options above; \\fB\\-\\-help\\fR lists them.\n")
                        .arg(known);
        }
    }
    return text;
}

QString ExampleSection()
{
    QString text;
    for (const Example& example : ExamplesOf()) {
        text += QStringLiteral(".PP\n%1:\n.PP\n.RS 4\n.nf\n%2\n.fi\n.RE\n").arg(Roff(example.text), Roff(example.line));
    }
    return text;
}

} // namespace

QString ManualPage(const QString& frame)
{
    QString page = frame;
    page.replace(QStringLiteral("@VERSION@"), QCoreApplication::applicationVersion());
    page.replace(QStringLiteral("@COMMANDS@\n"), CommandSections());
    page.replace(QStringLiteral("@EXAMPLES@\n"), ExampleSection());
    return page;
}

} // namespace BatchCli
