// SPDX-License-Identifier: MIT
void ZelAddOnInit() {}
