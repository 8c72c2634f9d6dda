// Whether the system's print service took the job that the toolkit has just handed over: the toolkit itself
// drops the service's answer.
#pragma once

[[nodiscard]] bool AuftragAngenommen();
