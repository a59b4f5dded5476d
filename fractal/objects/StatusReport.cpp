#include <fractal/objects/StatusReport.hpp>

#include <bramble/ObjectStatus.hpp>

namespace Fractal {

StatusReport::StatusReport(RenderObject const* object, Kolt::PoolPtr const& pool)
    : parameter_(object ? object->findParameter("status") : nullptr), pool_(pool) {
    // Look up the value here: a pool may be accessed on the user-interface thread only.
    if (parameter_)
        value_ = parameter_->getLocalValue(pool, std::string(), true);
}

void StatusReport::write(QString const& text) const {
    auto* const typed = Kolt::typedValue<Kolt::VObjectStatus>(value_.get());
    if (!typed || !typed->set(Kolt::VObjectStatus(text.toStdString())))
        return;
    value_->renewAge();
    parameter_->notifyValueChange(value_, pool_, std::string(), nullptr, nullptr, nullptr);
}

} // namespace Fractal
