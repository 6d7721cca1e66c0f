#include "imagefile.h"
#include "tempfolder.h"

#include <QFile>
#include <QImageReader>
#include <gtest/gtest.h>

using namespace orvelin;

namespace {

QString Example(const char* name) {
    return QStringLiteral(ORVELIN_SOURCE_DIR "/examples/images/") + QLatin1String(name);
}

} // namespace

TEST(ImageFormatOf, NamesTheFormatTheFirstBytesAnnounce) {
    EXPECT_EQ(ImageFormatOf(QByteArray("GIF89a\x10\x00", 8)), "gif");
    EXPECT_EQ(ImageFormatOf(QByteArray("GIF87a")), "gif");
    EXPECT_EQ(ImageFormatOf(QByteArray("\xFF\xD8\xFF\xE0\x00\x10JF", 8)), "jpeg");
    EXPECT_EQ(ImageFormatOf(QByteArray("\x89PNG\r\n\x1A\n", 8)), "png");
    EXPECT_EQ(ImageFormatOf(QByteArray("BM\x36\x00")), "bmp");
    EXPECT_EQ(ImageFormatOf(QByteArray("GIF8")), "");
    EXPECT_EQ(ImageFormatOf(QByteArray("\x89PNG\r\n", 6)), "");
    EXPECT_EQ(ImageFormatOf(QByteArray("<svg")), "");
    EXPECT_EQ(ImageFormatOf(QByteArray()), "");
}

TEST(ReadImageFile, ReadsWhatEveryReaderWouldRead) {
    for (const char* name : {"home.gif", "background.jpg", "contact.png"}) {
        const QImage expected = QImageReader(Example(name)).read();
        ASSERT_FALSE(expected.isNull()) << name;
        EXPECT_EQ(ReadImageFile(Example(name)), expected) << name;
        EXPECT_EQ(ImageFileSize(Example(name)), expected.size()) << name;
    }
}

TEST(ReadImageFile, GoesByTheContentNotTheExtension) {
    orvelin::testing::TempFolder folder;
    const QString disguised = QString::fromStdString(folder.path("tile.png"));
    ASSERT_TRUE(QFile::copy(Example("tile.gif"), disguised));
    const QImage expected = QImageReader(Example("tile.gif")).read();
    EXPECT_EQ(ReadImageFile(disguised), expected);
    EXPECT_EQ(ImageFileSize(disguised), expected.size());
}

TEST(ReadImageFile, AnUnreadableFileGivesNothing) {
    orvelin::testing::TempFolder folder;
    const QString text =
        QString::fromStdString(folder.write("notes.gif", "GIF89a but not really an image"));
    EXPECT_TRUE(ReadImageFile(text).isNull());
    EXPECT_FALSE(ImageFileSize(text).isValid());
    EXPECT_TRUE(ReadImageFile(QString::fromStdString(folder.path("missing.png"))).isNull());
}
