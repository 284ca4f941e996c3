#include <quilappstartup/idllinstance.h>

IDllInstance::IDllInstance() = default;

IDllInstance::~IDllInstance() = default;

IDllFactory::~IDllFactory() = default;
