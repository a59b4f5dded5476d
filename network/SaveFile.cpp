#include <network/SaveFile.hpp>

#include <cerrno>
#include <unistd.h>

namespace Talo {

namespace {

/// Waits until the disk has what was written; QSaveFile::commit() does not look whether that succeeds.
bool reachesDisk(int descriptor) {
    int result = 0;
    do
        result = fdatasync(descriptor);
    while (result != 0 && errno == EINTR);
    // Some file systems cannot be asked.
    return result == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
}

} // namespace

QString commitSaveFile(QSaveFile& file) {
    QString reason;
    if (!file.flush() || file.error() != QFileDevice::NoError)
        reason = file.errorString();
    else if (!reachesDisk(file.handle()))
        reason = qt_error_string(errno);
    if (reason.isEmpty() && file.commit())
        return {};
    if (reason.isEmpty())
        reason = file.errorString();
    file.cancelWriting();
    return reason;
}

} // namespace Talo
