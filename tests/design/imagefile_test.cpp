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
    EXPECT_EQ(imageFormatOf(QByteArray("GIF89a\x10\x00", 8)), "gif");
    EXPECT_EQ(imageFormatOf(QByteArray("\xFF\xD8\xFF\xE0\x00\x10JF", 8)), "jpeg");
    EXPECT_EQ(imageFormatOf(QByteArray("\x89PNG\r\n\x1A\n", 8)), "png");
    EXPECT_EQ(imageFormatOf(QByteArray("BM\x36\x00")), "bmp");
    EXPECT_EQ(imageFormatOf(QByteArray("GIF8")), "");
    EXPECT_EQ(imageFormatOf(QByteArray("\x89PNG\r\n", 6)), "");
    EXPECT_EQ(imageFormatOf(QByteArray()), "");
}

TEST(ReadImageFile, ReadsWhatEveryReaderWouldRead) {
    for (const char* name : {"home.gif", "background.jpg", "contact.png"}) {
        const QImage expected = QImageReader(Example(name)).read();
        ASSERT_FALSE(expected.isNull()) << name;
        EXPECT_EQ(readImageFile(Example(name)), expected) << name;
        EXPECT_EQ(imageFileSize(Example(name)), expected.size()) << name;
    }
    // It goes by the content, not the extension.
    orvelin::testing::TempFolder folder;
    const QString disguised = QString::fromStdString(folder.path("tile.png"));
    ASSERT_TRUE(QFile::copy(Example("tile.gif"), disguised));
    const QImage expected = QImageReader(Example("tile.gif")).read();
    EXPECT_EQ(readImageFile(disguised), expected);
    EXPECT_EQ(imageFileSize(disguised), expected.size());
}
