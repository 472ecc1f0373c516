#include "presentation/documents/template_failure.h"

#include <utility>

namespace velmar::presentation {

TemplateFailure::TemplateFailure(MessageRow cause, std::string detail)
    : Failure(Message{{MessagePiece(cause)}}, std::move(detail)) {}

}  // namespace velmar::presentation
