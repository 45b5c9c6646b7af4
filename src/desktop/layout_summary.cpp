// The overall results: what job they are of, one table, and the way to paper.
#include "desktop/layouts.h"

namespace terravane {

using namespace layout;

Place SummaryLayout()
{
    return Column({Group("fraResults",
                         {Row({Column({One("imgLogo"), Space()}),
                               Column({Fields({"txtProject", "txtLocation"}), One("mshSum", 1)}, 1)},
                              1)},
                         1),
                   Row({Space(), One("cmdPrint"), One("cmdClose")})});
}

}  // namespace terravane
