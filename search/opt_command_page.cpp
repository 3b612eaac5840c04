#include "search/opt_command_page.h"

namespace korvane::search {

COptCommandPage::COptCommandPage(SearchStores stores, UserCommandPlaces user, about::HelpOpener& help)
    : stores_{stores}, user_{user}, help_{help} {}

bool COptCommandPage::Save() {
    return true;
}

} // namespace korvane::search
