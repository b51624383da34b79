#include "RecordCheck.h"

#include "DocumentTree.h"
#include "Fuzzing.h"

namespace fuzzing {

void RequireKept(const std::string& earlier, const std::string& later,
                 const std::function<bool(pugi::xml_node)>& mayChange)
{
    const DocumentTree before(earlier);
    const DocumentTree after(later);
    Require(after.IsRead(), "what a record writes is XML");
    Require(StillThere(before.Everything(), after.Everything(), mayChange), "foreign content stays as it was");
}

}  // namespace fuzzing
