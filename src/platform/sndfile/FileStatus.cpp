// SPDX-License-Identifier: MIT
#include "platform/sndfile/FileStatus.h"

#include <array>
#include <cstring>

namespace fadeloom {

std::string fileStatusText(AudioStatus status)
{
    switch (status) {
    case kAudioFileUnsupportedDataFormatError:
        return "Unsupported file format";
    case kExtAudioFileError_InvalidDataFormat:
        return "Unsupported sample format";
    case kExtAudioFileError_InvalidOperationOrder:
        return "The sample format is not set";
    case kExtAudioFileError_AsyncWriteBufferOverflow:
        return "The disk is too slow";
    default:
        std::array<char, 256> text;
        return strerror_r(status, text.data(), text.size());
    }
}

}  // namespace fadeloom
