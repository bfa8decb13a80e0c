// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/EditedJob.h"

#include <QAbstractListModel>
#include <QJsonValue>

namespace BatchDesktop {

/// The effects of the job, in their order, as a list that can be changed. Each change is a step of the job's history,
/// and comes back from there: the model shows what the job has.
class EffectChain : public QAbstractListModel
{
    Q_OBJECT

public:
    EffectChain(EditedJob& job, QObject* parent);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Qt::CheckStateRole switches an effect on or off.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /// One row at a time; that is what dragging does.
    bool moveRows(const QModelIndex& sourceParent, int sourceRow, int count, const QModelIndex& destinationParent,
                  int destinationChild) override;
    bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }

    const Settings::Effect& At(int row) const { return effects.at(row); }

    /// Behind all others, with its defaults.
    void Add(const QString& effect);

    /// Behind the row.
    void Duplicate(int row);

    /// `to` is the row that it has then.
    void Move(int from, int to);

    /// Changes one parameter. Changes of the same one are one step until EditedJob::EndStep().
    void SetParameter(int row, const QString& name, const QJsonValue& value);

    /// What is wrong with the effect, in English; empty if nothing is, or if it is not known.
    QString ProblemOf(int row) const { return problems.value(row); }
    void SetProblems(const QVector<QString>& wanted);

    /// The name of the effect `id` in the user's language.
    static QString NameOf(const QString& id);

private:
    void Change(const QVector<Settings::Effect>& wanted, const QString& step, const QString& control = QString());
    void Follow();
    void InsertRows(int first, int count, const QVector<Settings::Effect>& now);

    EditedJob& job;
    QVector<Settings::Effect> effects;
    QVector<QString> problems; ///< by row; may be shorter
};

} // namespace BatchDesktop
