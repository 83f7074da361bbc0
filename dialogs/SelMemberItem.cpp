#include "dialogs/SelMemberItem.h"

// Out of line, so that the library exports them.
CSelMemberItem::CSelMemberItem() = default;
CSelMemberItem::CSelMemberItem(const CSelMemberItem&) = default;
CSelMemberItem& CSelMemberItem::operator=(const CSelMemberItem&) = default;
CSelMemberItem::~CSelMemberItem() = default;
