// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTGuardedDom_p.h"

#include <QDomDocument>
#include <QtTest>

/// The guarded parser, compared with the DOM's own.
class tst_GuardedDom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesAndRefusesLikeTheDom_data();
    void takesAndRefusesLikeTheDom();
    void depth_data();
    void depth();
    void refusesWhereTheDomWouldNot_data();
    void refusesWhereTheDomWouldNot();
};

namespace {

/// Everything below `node` except entity references.
QStringList Nodes(const QDomNode& node)
{
    QStringList lines;
    for (QDomNode child = node.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isEntityReference()) {
            continue;
        }
        QStringList attributes;
        for (int i = 0; i < child.attributes().count(); ++i) {
            const QDomAttr attribute = child.attributes().item(i).toAttr();
            attributes.append(attribute.name() + QLatin1Char('=') + attribute.value());
        }
        attributes.sort();
        lines.append(QStringList{QString::number(child.nodeType()), child.nodeName(), child.nodeValue(),
                                 attributes.join(QLatin1Char(','))}
                         .join(QLatin1Char('|')));
        lines.append(Nodes(child));
        lines.append(QStringLiteral("end"));
    }
    return lines;
}

} // namespace

void tst_GuardedDom::takesAndRefusesLikeTheDom_data()
{
    QTest::addColumn<QString>("text");

    for (const char* const text : {
             "",
             "<a/>",
             "<a>",
             "<a></b>",
             "<a b='1' b='2'/>",
             "<a b='&lt;&#10;\n\t x'/>",
             "<a b='&unknown;'/>",
             "<a>&unknown;</a>",
             "<a>&#0;&#x110000;</a>",
             "<a>  </a>",
             "<a> x <b/> y </a>",
             "<a><![CDATA[<b>]]></a>",
             "<a>]]></a>",
             "<a><!-- - -- --></a>",
             "<a><!-- c --></a>",
             "<a><?p i?></a>",
             "<?xml version='1.0'?><a/>",
             "<?xml version='1.1'?><a/>",
             "<?xml version='1.0' encoding='UTF-16' standalone='yes'?><a/>",
             " <?xml version='1.0'?><a/>",
             "<n:a xmlns:n='urn:x'><n:b n:c='1'/></n:a>",
             "<n:a/>",
             "<:a :b='1'/>",
             "<1/>",
             "<a 1='1'/>",
             "<!DOCTYPE a><a/>",
             "<!DOCTYPE a SYSTEM 'x'><a/>",
             "<!DOCTYPE a PUBLIC 'x' 'y'><a/>",
             "<!DOCTYPE a [<!ELEMENT a (b,(c|d)*,e?)><!ATTLIST a b (c|d) 'c' e CDATA #FIXED 'f'>]><a/>",
             "<!DOCTYPE a [<!ENTITY e SYSTEM 'file:///etc/hostname'>]><a>&e;</a>",
             "<!DOCTYPE a [<!NOTATION n SYSTEM 'x'><!ENTITY e SYSTEM 'y' NDATA n>]><a/>",
             "<!DOCTYPE a [<!-- c --><?p i?>]><a/>",
             "<!DOCTYPE a [<!ELEMENT a (]><a/>",
             "<!DOCTYPE a [%p;]><a/>",
             "<!doctype a><a/>",
             "<a/><b/>",
             "<a/>text",
             "<a/><!--c--><?p i?>",
         }) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void tst_GuardedDom::takesAndRefusesLikeTheDom()
{
    QFETCH(QString, text);

    QDomDocument expected;
    const bool isTaken = expected.setContent(text, false);
    ZTGuardedDom actual;
    QCOMPARE(actual.Parse(text), isTaken);
    QCOMPARE(Nodes(actual.Document()), Nodes(expected));
    QCOMPARE(actual.Document().doctype().name(), expected.doctype().name());
}

void tst_GuardedDom::depth_data()
{
    QTest::addColumn<int>("levels");
    QTest::addColumn<bool>("isTaken");

    QTest::newRow("one") << 1 << true;
    QTest::newRow("deepest on the caller's stack") << 1000 << true;
    QTest::newRow("deeper") << 1001 << true;
    QTest::newRow("deepest") << ZTGuardedDom::maximumDepth << true;
    QTest::newRow("too deep") << ZTGuardedDom::maximumDepth + 1 << false;
}

void tst_GuardedDom::depth()
{
    QFETCH(int, levels);
    QFETCH(bool, isTaken);

    const QString chain = QStringLiteral("<a>").repeated(levels) + QStringLiteral("</a>").repeated(levels);
    QCOMPARE(ZTGuardedDom().Parse(chain), isTaken);
    // An empty innermost element and siblings on the way do not change the depth.
    const QString branched = QStringLiteral("<a><b/>").repeated(levels - 1) + QStringLiteral("<a/>") +
                             QStringLiteral("</a>").repeated(levels - 1);
    QCOMPARE(ZTGuardedDom().Parse(branched), isTaken);
}

void tst_GuardedDom::refusesWhereTheDomWouldNot_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("entity") << QStringLiteral("<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>");
    QTest::newRow("unused entity") << QStringLiteral("<!DOCTYPE a [<!ENTITY e 'x'>]><a/>");
    QTest::newRow("parameter entity") << QStringLiteral("<!DOCTYPE a [<!ENTITY % e '<!ELEMENT a ANY>'>%e;]><a/>");
    QTest::newRow("content model") << QStringLiteral("<!DOCTYPE a [<!ELEMENT a %1b%2>]><a/>")
                                          .arg(QString(1001, QLatin1Char('(')), QString(1001, QLatin1Char(')')));
}

void tst_GuardedDom::refusesWhereTheDomWouldNot()
{
    QFETCH(QString, text);

    QVERIFY(QDomDocument().setContent(text, false));
    QVERIFY(!ZTGuardedDom().Parse(text));
}

QTEST_GUILESS_MAIN(tst_GuardedDom)
#include "tst_guardeddom.moc"
