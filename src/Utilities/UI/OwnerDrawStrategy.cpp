#include <Utilities/UI/OwnerDrawStrategy.h>

namespace Vek::Framework::Utilities::UI
{

OwnerDrawStrategy::OwnerDrawStrategy() noexcept = default;
OwnerDrawStrategy::~OwnerDrawStrategy() = default;

} // namespace Vek::Framework::Utilities::UI
