// SPDX-License-Identifier: MIT
// The contract of audio files for those of libsndfile.
#include "platform/sndfile/SndfileAudioFiles.h"
#include "tests/platform/AudioFilesContract.h"
#include "tests/platform/sndfile/WaveReading.h"
#include "tests/support/TemporaryFolder.h"

namespace fadeloom {
namespace {

class SndfileFilesWorld final : public ContractFilesWorld {
public:
    AudioFiles& files() override { return files_; }
    std::filesystem::path folder() override { return folder_.path(); }
    std::optional<WrittenSound> read(const std::filesystem::path& location) override
    {
        return readWave(location);
    }

private:
    TemporaryFolder folder_;
    SndfileAudioFiles files_;
};

std::unique_ptr<ContractFilesWorld> makeSndfileFilesWorld()
{
    return std::make_unique<SndfileFilesWorld>();
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Sndfile, AudioFilesContract, ::testing::Values(&makeSndfileFilesWorld));

}  // namespace fadeloom
