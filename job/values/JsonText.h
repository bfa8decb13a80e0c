// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace BatchJob {

/// Appends `text` to `json` as a string of JSON in UTF-8.
void AppendJsonString(QByteArray& json, const QString& text);

/// An object of JSON that is appended to a text as its fields are added. Many lines are written with it: a QJsonObject
/// for each of them takes ten times as long. Fields come in the order in which they are added; a QJsonObject sorts them
/// by their keys, so that who adds them in that order gets the same text.
class JsonObjectText
{
public:
    /// `json` must outlive the object. Nothing else is appended to it meanwhile but objects in lists of this one.
    explicit JsonObjectText(QByteArray& json)
        : json(json)
    {
        json += '{';
    }
    ~JsonObjectText() { json += '}'; }

    void Add(const char* key, const QString& text)
    {
        AddKey(key);
        AppendJsonString(json, text);
    }

    /// Not more than 2^53.
    void Add(const char* key, qint64 number)
    {
        AddKey(key);
        json += QByteArray::number(number);
    }

    /// A list of objects, which the caller appends, each after NextInList().
    void BeginList(const char* key)
    {
        AddKey(key);
        json += '[';
        isListEmpty = true;
    }
    void NextInList()
    {
        if (!isListEmpty) {
            json += ',';
        }
        isListEmpty = false;
    }
    void EndList() { json += ']'; }

private:
    Q_DISABLE_COPY(JsonObjectText)

    void AddKey(const char* key)
    {
        if (!isEmpty) {
            json += ',';
        }
        isEmpty = false;
        json += '"';
        json += key;
        json += "\":";
    }

    QByteArray& json;
    bool isEmpty = true;
    bool isListEmpty = true;
};

} // namespace BatchJob
