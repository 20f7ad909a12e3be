#include "component/translations/TsFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QXmlStreamReader>

namespace {

QStringList ReadForms(QXmlStreamReader& xml)
{
    QStringList forms;
    QString plain;
    while (!xml.atEnd() && !(xml.isEndElement() && xml.name() == "translation")) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == "numerusform")
            forms << xml.readElementText();
        else if (xml.isCharacters())
            plain += xml.text();
    }
    return forms.isEmpty() ? QStringList{plain} : forms;
}

void ReadMessage(QXmlStreamReader& xml, const QString& context, TsTexts& texts)
{
    TsText text;
    QString comment;
    while (xml.readNextStartElement()) {
        if (xml.name() == "source") {
            text.source = xml.readElementText();
        } else if (xml.name() == "comment") {
            comment = xml.readElementText();
        } else if (xml.name() == "translation") {
            text.finished = !xml.attributes().hasAttribute("type");
            text.forms = ReadForms(xml);
        } else {
            xml.skipCurrentElement();
        }
    }
    texts[context + " | " + text.source + (comment.isEmpty() ? "" : " | " + comment)] = text;
}

} // namespace

TsTexts ReadTsFile(const QString& path)
{
    TsTexts texts;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == "name")
            context = xml.readElementText();
        else if (xml.isStartElement() && xml.name() == "message")
            ReadMessage(xml, context, texts);
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(path + ": " + xml.errorString());
    return texts;
}
