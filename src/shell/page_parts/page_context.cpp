#include "shell/page_parts/page_context.h"

namespace velmar::shell {

PageContext::PageContext(calculation::OpenCalculation& open_calculation, const Speech& how_to_speak,
                         const PageServices& page_services, MaterialLists& lists)
    : open(open_calculation), speech(how_to_speak), services(page_services), materials(lists) {}

}  // namespace velmar::shell
