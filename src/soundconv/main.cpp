// SoundConv: turns sound files into the Sun .au form button bars play.
//   SoundConv                    the converter's window
//   SoundConv [-o DIR] FILE...   converts on the command line, no display needed;
//                                exit status 1 when any file failed, 2 for a wrong
//                                command line
#include "appicon.h"
#include "languagefiles.h"
#include "programfolder.h"
#include "qsettingsbackend.h"
#include "settings.h"
#include "soundconversion.h"
#include "soundconvwindow.h"
#include "textcatalogue.h"
#include "windowtexts.h"

#include <QApplication>
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr const char* kUsage =
    "Usage: SoundConv [-o DIR] FILE...\n"
    "Converts sound files (WAV, FLAC, Ogg and whatever else libsndfile reads) into\n"
    "Sun audio: FILE.au, 8000 Hz, mono, 8-bit mu-law, beside each FILE or in DIR.\n"
    "Without files, opens the converter's window.\n";

int convertOnCommandLine(int argc, char** argv) {
    std::string folder;
    std::vector<std::string> files;
    for (int i = 1; i < argc; ++i) {
        const char* argument = argv[i];
        if (std::strcmp(argument, "-h") == 0 || std::strcmp(argument, "--help") == 0) {
            std::cout << kUsage;
            return 0;
        }
        if (std::strcmp(argument, "-o") == 0) {
            if (++i == argc) {
                std::cerr << "SoundConv: -o needs a folder\n" << kUsage;
                return 2;
            }
            folder = argv[i];
        } else {
            files.emplace_back(argument);
        }
    }
    if (files.empty()) {
        std::cerr << "SoundConv: no sound file given\n" << kUsage;
        return 2;
    }
    int status = 0;
    for (const std::string& file : files) {
        const orvelin::ConversionResult result = orvelin::convertToAu(file, folder);
        if (result.ok) {
            std::cout << result.output << '\n';
        } else {
            std::cerr << "SoundConv: " << result.error << '\n';
            status = 1;
        }
    }
    return status;
}

} // namespace

int main(int argc, char** argv) {
    if (argc > 1)
        return convertOnCommandLine(argc, argv);
    QApplication app(argc, argv);
    QApplication::setWindowIcon(orvelin::AppIcon());
    // The designer's language: its settings' Current, the file in its program folder.
    orvelin::QSettingsBackend store;
    orvelin::Settings settings(store);
    orvelin::TextCatalogue texts;
    orvelin::LanguageFiles languages(texts, settings, orvelin::findProgramFolder());
    const orvelin::LanguageInForce inForce(texts, languages);
    orvelin::applyLayoutDirection(languages.current());
    orvelin::SoundConvWindow window;
    window.show();
    return QApplication::exec();
}
