#include <network/SaveFile.hpp>

namespace Talo {

QString commitSaveFile(QSaveFile& file) {
    if (file.flush() && file.error() == QFileDevice::NoError && file.commit())
        return {};
    auto const reason = file.errorString();
    file.cancelWriting();
    return reason;
}

} // namespace Talo
