#include "platform/qt/sql/SqliteFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace kel::qt {

namespace {

using records::StoreError;
using Kind = StoreError::Kind;

// Places in the file's header, and what this program's SQLite knows.
constexpr qsizetype HeaderSize = 100;
constexpr qsizetype WriteVersionAt = 18;
constexpr qsizetype ReadVersionAt = 19;
constexpr qsizetype SchemaFormatAt = 44;
constexpr qsizetype UserVersionAt = 60;
constexpr qsizetype ApplicationAt = 68;
constexpr int KnownVersion = 2;
constexpr quint32 KnownSchemaFormat = 4;

quint32 numberAt(const QByteArray& header, qsizetype place) {
    return qFromBigEndian<quint32>(header.constData() + place);
}

StoreError newer(const char* program) {
    return {Kind::Wrong, std::string("The file was written by a newer version of ") + program +
                             ". Please install that version, or name another file; this one is left as it is."};
}

}  // namespace

StoreError notADatabase() {
    return {Kind::Wrong, "The file is no database of SQLite. Please name another one; this one is left as it is."};
}

void checkFile(const QString& name) {
    const QFileInfo info(name);
    if (info.isDir()) throw StoreError(Kind::Wrong, "This is a folder. Please name a file in it.");
    if (!info.absoluteDir().exists())
        throw StoreError(Kind::Wrong, "There is no folder " + info.absolutePath().toStdString() +
                                          ". Please make it, or name another file.");
    QFile file(name);
    if (!info.exists() || info.size() == 0 || !file.open(QIODevice::ReadOnly)) return;
    const QByteArray header = file.read(HeaderSize);
    if (header.size() < HeaderSize || !header.startsWith(QByteArray("SQLite format 3\0", 16))) throw notADatabase();
    if (header[WriteVersionAt] > KnownVersion || header[ReadVersionAt] > KnownVersion ||
        numberAt(header, SchemaFormatAt) > KnownSchemaFormat)
        throw newer("SQLite");
    if (numberAt(header, ApplicationAt) == quint32{FileMark} && numberAt(header, UserVersionAt) > quint32{FileVersion})
        throw newer("kelforms");
}

}  // namespace kel::qt
