#include <Utilities/IPropertyCollection/Internal/FactoryState.h>

namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
{

Backup& FactoryState::BorrowBackup()
{
    if (backupsInUse == backups.size())
        backups.push_back(std::unique_ptr<Backup>(new Backup{ PropertyCollection(*this, std::wstring()), {} }));
    return *backups[backupsInUse++];
}

void FactoryState::ReturnBackup() noexcept
{
    backups[--backupsInUse]->changed.clear();
}

} // namespace Vek::Framework::Utilities::IPropertyCollection::Native::Internal
