#include "shell/pages/page_context.h"

namespace velmar::shell {

PageContext::PageContext(calculation::OpenCalculation& open_calculation,
                         const WindowServices& window_services, MaterialLists& lists)
    : open(open_calculation), services(window_services), materials(lists) {}

}  // namespace velmar::shell
