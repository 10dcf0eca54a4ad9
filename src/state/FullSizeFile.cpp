#include "state/FullSizeFile.h"

#include "platform/Application.h"

#include <cstdint>

namespace ballhaven {

namespace {

bool IsShort(const RecordFile& file, const FileSizes& sizes) {
    return file.Length() <= std::int64_t{sizes.olderRecordCount} * sizes.recordLength;
}

void FillUp(RecordFile& file, const FileSizes& sizes) {
    const int firstMissing = file.Length() == 0 ? 1 : sizes.olderRecordCount + 1;
    for (int record = firstMissing; record <= sizes.recordCount; ++record) {
        file.Write(record, "");
    }
    if (sizes.headerFor != nullptr) {
        file.Write(1, sizes.headerFor(file.Read(1)));
    }
}

}  // namespace

RecordFile OpenAtFullSize(const std::string& path, const FileSizes& sizes) {
    RecordFile file(path, sizes.recordLength, sizes.recordCount);
    while (IsShort(file, sizes)) {
        FillUp(file, sizes);
        file.Close();
        platform::ProcessPendingEvents();
        file = RecordFile(path, sizes.recordLength, sizes.recordCount);
    }
    return file;
}

}  // namespace ballhaven
