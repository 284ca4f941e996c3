#include "jedcommonhelper.h"

#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

namespace JEDVEPLUGIN {

void JEDCommonHelper::CopyXml(QXmlStreamReader& reader, QXmlStreamWriter& writer)
{
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.tokenType()) {
        case QXmlStreamReader::StartElement:
            writer.writeCurrentToken(reader);
            ++depth;
            break;
        case QXmlStreamReader::EndElement:
            writer.writeCurrentToken(reader);
            if (--depth < 0)
                return;
            break;
        case QXmlStreamReader::Characters:
            if (!reader.isWhitespace())
                writer.writeCurrentToken(reader);
            break;
        default:
            break;
        }
        reader.readNext();
    }
}

} // namespace JEDVEPLUGIN
