#pragma once

#include <string>

namespace orvelin {

/// What became of one file: the written path, or why nothing was written.
struct ConversionResult {
    bool ok = false;
    std::string output; ///< the .au file written
    std::string error;  ///< a sentence naming the file and the reason
};

/// `input`'s name with the extension ".au", in `outputFolder` (beside `input` when empty).
std::string auPathFor(const std::string& input, const std::string& outputFolder);

/**
 * Converts any sound file libsndfile reads (WAV, FLAC, Ogg, AIFF...) into the form
 * button bars play: Sun .au, 8000 Hz, one channel, 8-bit mu-law. Channels are mixed
 * down and the sound resampled with libsamplerate. The result is written to a
 * temporary file and renamed into place, so a failure leaves no output and never
 * touches an earlier file of the same name.
 */
ConversionResult convertToAu(const std::string& input, const std::string& outputFolder = {});

} // namespace orvelin
