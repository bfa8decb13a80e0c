// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileEditor.h"

#include "Choosers.h"
#include "hosts/common/Language.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

using BatchHost::Messages;

namespace BatchDesktop {

FileEditor::FileEditor(const ParameterRow& row, const Choosers& choosers, QWidget* parent)
    : ParameterEditor(parent)
    , field(new QLineEdit(this))
{
    auto* const button = new QPushButton(Messages::tr("Choose..."), this);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(field, 1);
    layout->addWidget(button);
    Adopt(*field, row);
    Adopt(*button, row, QStringLiteral("button"));
    button->setAccessibleName(Messages::tr("Choose %1").arg(row.label));
    SetMainControl(field);
    connect(button, &QPushButton::clicked, this, [this, &choosers, row] {
        const QString path = (row.isFolder ? choosers.folder : choosers.file)(this, row.label, shown);
        if (!path.isEmpty()) {
            Q_EMIT Refused(QString());
            Q_EMIT Edited(QDir::fromNativeSeparators(path));
            Q_EMIT EditEnded();
        }
    });
    // While a path is typed, each letter would be another file.
    connect(field, &QLineEdit::editingFinished, this, [this] {
        const QString path = QDir::fromNativeSeparators(field->text());
        if (path == shown) {
            Q_EMIT Refused(QString());
        } else if (QDir::isAbsolutePath(path)) {
            Q_EMIT Refused(QString());
            Q_EMIT Edited(path);
            Q_EMIT EditEnded();
        } else {
            Q_EMIT Refused(Messages::tr("\"%1\" is no complete path; it must begin at the root, such as %2.")
                               .arg(field->text(), QDir::toNativeSeparators(QDir::home().filePath(path))));
        }
    });
}

void FileEditor::SetValue(const QJsonValue& value)
{
    if (value.toString() != shown) {
        shown = value.toString();
        Q_EMIT Refused(QString());
        field->setText(QDir::toNativeSeparators(shown));
    }
}

} // namespace BatchDesktop
