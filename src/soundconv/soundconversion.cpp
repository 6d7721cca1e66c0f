#include "soundconversion.h"

#include "textcatalogue.h"
#include "texthelpers.h"

#include <cmath>
#include <filesystem>
#include <memory>
#include <samplerate.h>
#include <sndfile.h>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace orvelin {

namespace {

constexpr int kAuRate = 8000;

struct SndfileCloser {
    void operator()(SNDFILE* file) const { sf_close(file); }
};
using SoundFile = std::unique_ptr<SNDFILE, SndfileCloser>;

ConversionResult failure(const std::string& input, const std::string& reason) {
    return {false, {}, input + ": " + reason};
}

// A reason the converter gives in words of its own, in the language in force; `detail`
// (the sound library's or the system's own text) takes the place of "%1".
std::string reason(std::string_view name, std::string_view detail = {}) {
    return ReplaceAll(texts().text("frmSoundConv", name), "%1", detail);
}

// The whole sound, mixed down to one channel; button sounds are seconds long.
bool readMono(SNDFILE* file, const SF_INFO& info, std::vector<float>& mono, std::string& error) {
    const auto channels = static_cast<std::size_t>(info.channels);
    std::vector<float> block(4096 * channels);
    mono.reserve(static_cast<std::size_t>(info.frames));
    for (;;) {
        const sf_count_t got = sf_readf_float(file, block.data(), 4096);
        if (got <= 0)
            break;
        for (sf_count_t frame = 0; frame < got; ++frame) {
            float sum = 0;
            for (std::size_t c = 0; c < channels; ++c)
                sum += block[static_cast<std::size_t>(frame) * channels + c];
            mono.push_back(sum / static_cast<float>(channels));
        }
    }
    if (sf_error(file) != SF_ERR_NO_ERROR) {
        error = sf_strerror(file);
        return false;
    }
    if (mono.empty()) {
        error = reason("#noSound");
        return false;
    }
    return true;
}

bool resample(std::vector<float>& samples, int fromRate, std::string& error) {
    if (fromRate == kAuRate)
        return true;
    const double ratio = static_cast<double>(kAuRate) / fromRate;
    std::vector<float> out(static_cast<std::size_t>(static_cast<double>(samples.size()) * ratio) +
                           16);
    SRC_DATA data{};
    data.data_in = samples.data();
    data.input_frames = static_cast<long>(samples.size());
    data.data_out = out.data();
    data.output_frames = static_cast<long>(out.size());
    data.src_ratio = ratio;
    if (const int status = src_simple(&data, SRC_SINC_MEDIUM_QUALITY, 1); status != 0) {
        error = src_strerror(status);
        return false;
    }
    // The resampler's filter holds back a sample or so at the end; the sound keeps its
    // exact duration (padded with silence).
    out.resize(static_cast<std::size_t>(data.output_frames_gen));
    out.resize(static_cast<std::size_t>(std::lround(static_cast<double>(samples.size()) * ratio)),
               0.0F);
    samples = std::move(out);
    return true;
}

bool writeAu(const std::string& path, const std::vector<float>& samples, std::string& error) {
    SF_INFO info{};
    info.samplerate = kAuRate;
    info.channels = 1;
    info.format = SF_FORMAT_AU | SF_FORMAT_ULAW;
    SoundFile file(sf_open(path.c_str(), SFM_WRITE, &info));
    if (!file) {
        error = sf_strerror(nullptr);
        return false;
    }
    // Resampling may overshoot full scale a little; clip rather than wrap around.
    sf_command(file.get(), SFC_SET_CLIPPING, nullptr, SF_TRUE);
    const auto frames = static_cast<sf_count_t>(samples.size());
    if (sf_writef_float(file.get(), samples.data(), frames) != frames) {
        error = sf_strerror(file.get());
        return false;
    }
    return true;
}

} // namespace

std::string auPathFor(const std::string& input, const std::string& outputFolder) {
    fs::path source(input);
    const fs::path folder = outputFolder.empty() ? source.parent_path() : fs::path(outputFolder);
    return (folder / source.filename().replace_extension(".au")).string();
}

ConversionResult convertToAu(const std::string& input, const std::string& outputFolder) {
    const std::string output = auPathFor(input, outputFolder);
    std::error_code ec;
    if (fs::equivalent(input, output, ec))
        return failure(input, reason("#replacesSource"));

    SF_INFO info{};
    SoundFile source(sf_open(input.c_str(), SFM_READ, &info));
    if (!source)
        return failure(input, reason("#unreadable", sf_strerror(nullptr)));
    std::vector<float> samples;
    std::string error;
    if (!readMono(source.get(), info, samples, error) || !resample(samples, info.samplerate, error))
        return failure(input, error);

    // Written beside the target under a temporary name, then renamed over it.
    const std::string temporary = output + ".part";
    if (!writeAu(temporary, samples, error)) {
        fs::remove(temporary, ec);
        return failure(output, reason("#unwritable", error));
    }
    fs::rename(temporary, output, ec);
    if (ec) {
        const std::string system = ec.message();
        fs::remove(temporary, ec);
        return failure(output, reason("#unwritable", system));
    }
    return {true, output, {}};
}

} // namespace orvelin
