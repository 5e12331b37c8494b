// SPDX-License-Identifier: MIT
#include "platform/macos/launch_agent.h"

namespace tarnwick {

LoginItemFile launchAgent(const QString& folder, const QString& identifier, const QString& program,
                          const QString& application)
{
    // The keys are described in launchd.plist(5). Aqua: not for a login over the network.
    const QString content =
        QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0">
<dict>
	<key>Label</key>
	<string>%1</string>
	<key>ProgramArguments</key>
	<array>
		<string>%2</string>
	</array>
	<key>AssociatedBundleIdentifiers</key>
	<string>%3</string>
	<key>LimitLoadToSessionType</key>
	<string>Aqua</string>
	<key>RunAtLoad</key>
	<true/>
</dict>
</plist>
)")
            .arg(identifier.toHtmlEscaped(), program.toHtmlEscaped(), application.toHtmlEscaped());
    return {folder + u'/' + identifier + QStringLiteral(".plist"), program, content.toUtf8()};
}

} // namespace tarnwick
