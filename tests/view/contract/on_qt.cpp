#include "view/contract/Contract.h"

std::unique_ptr<Tarnwise::Driver> Tarnwise::MakeContractDriver() { return MakeQtDriver(); }
