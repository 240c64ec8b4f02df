<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AccessibilityTexts</name>
    <message>
        <source>Dismiss</source>
        <translation>关闭提示</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Copy Log</source>
        <translation>复制日志</translation>
    </message>
    <message>
        <source>Writing firmware</source>
        <translation>正在写入固件</translation>
    </message>
    <message>
        <source>Uploading configuration</source>
        <translation>正在上传配置</translation>
    </message>
    <message>
        <source>Reading the machine&apos;s configuration</source>
        <translation>正在读取机器的配置</translation>
    </message>
    <message>
        <source>Checking that the machine starts</source>
        <translation>正在检查机器能否启动</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>Machine config saved to %1 (%2 bytes)</source>
        <translation>机器配置已保存到 %1（%2 字节）</translation>
    </message>
    <message>
        <source>Could not save the machine config to %1: %2</source>
        <translation>无法将机器配置保存到 %1：%2</translation>
    </message>
    <message>
        <source>Could not read config.yaml from the machine: %1</source>
        <translation>无法从机器读取 config.yaml：%1</translation>
    </message>
    <message>
        <source>Failed to open port</source>
        <translation>无法打开端口</translation>
    </message>
    <message>
        <source>XModem download: invalid arguments</source>
        <translation>XModem 下载：参数无效</translation>
    </message>
    <message>
        <source>XModem download: invalid file name</source>
        <translation>XModem 下载：文件名无效</translation>
    </message>
    <message>
        <source>XModem download: could not send the command</source>
        <translation>XModem 下载：无法发送命令</translation>
    </message>
    <message>
        <source>XModem download: no block received</source>
        <translation>XModem 下载：未收到数据块</translation>
    </message>
    <message>
        <source>XModem download: cancelled by the device</source>
        <translation>XModem 下载：被设备取消</translation>
    </message>
    <message>
        <source>XModem download: file larger than 16 MiB</source>
        <translation>XModem 下载：文件大于 16 MiB</translation>
    </message>
    <message>
        <source>XModem download: block %1 failed 25 times</source>
        <translation>XModem 下载：数据块 %1 失败 25 次</translation>
    </message>
    <message>
        <source>XModem download: could not answer the device</source>
        <translation>XModem 下载：无法应答设备</translation>
    </message>
    <message>
        <source>XModem download: out of memory</source>
        <translation>XModem 下载：内存不足</translation>
    </message>
    <message>
        <source>XModem download: failed (%1)</source>
        <translation>XModem 下载：失败（%1）</translation>
    </message>
    <message>
        <source>Could not back up the machine config; the upload did not start: %1</source>
        <translation>无法备份机器配置，上传未开始：%1</translation>
    </message>
    <message>
        <source>Machine config saved</source>
        <translation>机器配置已保存</translation>
    </message>
    <message>
        <source>Machine config compared</source>
        <translation>机器配置已比较</translation>
    </message>
    <message>
        <source>Machine config matches %1 by key</source>
        <translation>机器配置按键与 %1 一致</translation>
    </message>
    <message>
        <source>Machine config differs from %1 in 1 key</source>
        <translation>机器配置与 %1 有 1 个键不同</translation>
    </message>
    <message>
        <source>Machine config differs from %1 in %2 keys</source>
        <translation>机器配置与 %1 有 %2 个键不同</translation>
    </message>
    <message>
        <source>Equal by key</source>
        <translation>按键相同</translation>
    </message>
    <message>
        <source>Different</source>
        <translation>不同</translation>
    </message>
    <message>
        <source>Could not prepare the backups folder %1 as a folder only you can read</source>
        <translation>无法将备份文件夹 %1 设为只有您能读取的文件夹</translation>
    </message>
    <message>
        <source>Could not write the backup %1: %2</source>
        <translation>无法写入备份 %1：%2</translation>
    </message>
    <message>
        <source>No backup was kept: %1</source>
        <translation>未保留备份：%1</translation>
    </message>
    <message>
        <source>Skipped the backup record %1: %2</source>
        <translation>已跳过备份记录 %1：%2</translation>
    </message>
    <message>
        <source>not a backup record</source>
        <translation>不是备份记录</translation>
    </message>
    <message>
        <source>its copy %1 is missing</source>
        <translation>其副本 %1 丢失</translation>
    </message>
    <message>
        <source>its copy %1 has changed</source>
        <translation>其副本 %1 已被更改</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>已比较</translation>
    </message>
    <message>
        <source>Before upload</source>
        <translation>上传前</translation>
    </message>
    <message>
        <source>Before erase</source>
        <translation>擦除前</translation>
    </message>
    <message>
        <source>%1  %2  %3  %4 bytes  %5  %6</source>
        <translation>%1  %2  %3  %4 字节  %5  %6</translation>
    </message>
    <message>
        <source>No backups in %1</source>
        <translation>%1 中没有备份</translation>
    </message>
    <message>
        <source>1 backup in %1</source>
        <translation>%1 中有 1 个备份</translation>
    </message>
    <message>
        <source>%1 backups in %2</source>
        <translation>%2 中有 %1 个备份</translation>
    </message>
    <message>
        <source>No backup of the machine %1 in %2</source>
        <translation>%2 中没有机器 %1 的备份</translation>
    </message>
    <message>
        <source>No backup %1 in %2</source>
        <translation>%2 中没有备份 %1</translation>
    </message>
    <message>
        <source>Every configuration read from a machine is kept in %1. The connected machine&apos;s are on top, newest first.</source>
        <translation>从机器读取的每份配置都保存在 %1 中。已连接机器的配置在最上面，最新的在前。</translation>
    </message>
    <message>
        <source>No configuration has been kept yet. Every configuration read from a machine (Save Machine Config, Compare With Machine, the backup before an upload, the save before Erase All Flash) is kept in %1.</source>
        <translation>尚未保存任何配置。从机器读取的每份配置（保存机器配置、与机器比较、上传前的备份、“擦除全部闪存”前的保存）都会保存在 %1 中。</translation>
    </message>
    <message>
        <source>%1 (this machine)</source>
        <translation>%1（本机）</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 字节</translation>
    </message>
    <message>
        <source>Saving the machine&apos;s settings before Erase All Flash…</source>
        <translation>正在“擦除全部闪存”之前保存机器的设置…</translation>
    </message>
    <message>
        <source>The machine&apos;s firmware does not answer, so its settings cannot be saved.</source>
        <translation>机器的固件没有响应，因此无法保存其设置。</translation>
    </message>
    <message>
        <source>Erasing all flash without saving the settings.</source>
        <translation>正在擦除全部闪存，不保存设置。</translation>
    </message>
    <message>
        <source>Nothing was erased: %1</source>
        <translation>未擦除任何内容：%1</translation>
    </message>
    <message>
        <source>The settings read before the erase were not put back; they are kept in %1. Once the machine runs, restore them with Config &gt; Restore Machine Config….</source>
        <translation>擦除前读取的设置未被恢复，它们保存在 %1 中。机器运行后，请通过“配置 &gt; 恢复机器配置…”恢复。</translation>
    </message>
    <message>
        <source>The settings read before the erase were not put back; they are kept in %1. Once the machine runs, restore them with: teskal-flash restore-config --port %2 %3</source>
        <translation>擦除前读取的设置未被恢复，它们保存在 %1 中。机器运行后，请用以下命令恢复：teskal-flash restore-config --port %2 %3</translation>
    </message>
    <message>
        <source>To put back the configuration the machine had before: teskal-flash restore-config --port %1 %2</source>
        <translation>要恢复机器之前的配置：teskal-flash restore-config --port %1 %2</translation>
    </message>
    <message>
        <source>Settings restored from the backup of %1.</source>
        <translation>已从 %1 的备份恢复设置。</translation>
    </message>
    <message>
        <source>Firmware %1 installed and running, with your settings restored from the backup of %2.</source>
        <translation>固件 %1 已安装并正在运行，您的设置已从 %2 的备份恢复。</translation>
    </message>
    <message>
        <source>Firmware installed and running, with your settings restored from the backup of %1.</source>
        <translation>固件已安装并正在运行，您的设置已从 %1 的备份恢复。</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>固件 %1</translation>
    </message>
    <message>
        <source>your settings from %1</source>
        <translation>您在 %1 的设置</translation>
    </message>
    <message>
        <source>your current settings, saved first</source>
        <translation>您当前的设置（先行保存）</translation>
    </message>
    <message>
        <source>the stock configuration of %1</source>
        <translation>%1 的出厂配置</translation>
    </message>
    <message>
        <source>Erase the machine, install %1, then put back %2.</source>
        <translation>擦除机器，安装 %1，然后恢复%2。</translation>
    </message>
    <message>
        <source>Erase the machine and install %1, without a configuration.</source>
        <translation>擦除机器并安装 %1，不恢复配置。</translation>
    </message>
    <message>
        <source>Machine repaired: it runs %1 with %2.</source>
        <translation>机器已修复：运行 %1，配置为%2。</translation>
    </message>
    <message>
        <source>Machine repaired: it runs %1, without a configuration.</source>
        <translation>机器已修复：运行 %1，没有配置。</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. No backups in %2. Choose another backup, a product&apos;s stock configuration, or none in the Repair dialog.</source>
        <translation>未擦除任何内容：没有可在修复后恢复的机器 %1 的备份。%2 中没有备份。请在“修复机器”对话框中选择其他备份、某个产品的出厂配置或不恢复配置。</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. No backups in %2. Choose what goes back with --backup FILE, --product NAME or --no-config.</source>
        <translation>未擦除任何内容：没有可在修复后恢复的机器 %1 的备份。%2 中没有备份。请用 --backup FILE、--product NAME 或 --no-config 选择要恢复的内容。</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. Backups in %2: %3. Choose another backup, a product&apos;s stock configuration, or none in the Repair dialog.</source>
        <translation>未擦除任何内容：没有可在修复后恢复的机器 %1 的备份。%2 中的备份：%3。请在“修复机器”对话框中选择其他备份、某个产品的出厂配置或不恢复配置。</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. Backups in %2: %3. Choose what goes back with --backup FILE, --product NAME or --no-config.</source>
        <translation>未擦除任何内容：没有可在修复后恢复的机器 %1 的备份。%2 中的备份：%3。请用 --backup FILE、--product NAME 或 --no-config 选择要恢复的内容。</translation>
    </message>
    <message>
        <source>This machine has no backup of its settings. Choose what goes back after the erase.</source>
        <translation>这台机器没有设置备份。请选择擦除后要恢复的内容。</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>快照</translation>
    </message>
    <message>
        <source>Before update</source>
        <translation>更新前</translation>
    </message>
    <message>
        <source>Before repair</source>
        <translation>修复前</translation>
    </message>
</context>
<context>
    <name>CatalogueTexts</name>
    <message>
        <source>&quot;%1&quot; is not a firmware catalogue: give an http:// or https:// address, a catalogue.json file or a folder that holds one.</source>
        <translation>“%1”不是固件目录：请提供 http:// 或 https:// 地址、catalogue.json 文件，或包含该文件的文件夹。</translation>
    </message>
    <message>
        <source>The catalogue key %1 is missing, so no firmware catalogue can be checked. Reinstall the updater, or use the bundled firmware.</source>
        <translation>找不到目录密钥 %1，因此无法校验任何固件目录。请重新安装更新程序，或使用随附的固件。</translation>
    </message>
    <message>
        <source>The catalogue key %1 is not an Ed25519 public key, so no firmware catalogue can be checked. Reinstall the updater, or use the bundled firmware.</source>
        <translation>目录密钥 %1 不是 Ed25519 公钥，因此无法校验任何固件目录。请重新安装更新程序，或使用随附的固件。</translation>
    </message>
    <message>
        <source>The catalogue key %1 is the development key, which only the simulated plotter trusts. Reinstall the updater, or use the bundled firmware.</source>
        <translation>目录密钥 %1 是开发用密钥，只有模拟绘图仪信任它。请重新安装更新程序，或使用随附的固件。</translation>
    </message>
    <message>
        <source>The firmware catalogue could not be read from %1 (%2). Check the address and the network connection and try again, or use the bundled firmware.</source>
        <translation>无法从 %1 读取固件目录（%2）。请检查地址和网络连接后重试，或使用随附的固件。</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 did not arrive within %2 s. Check the network connection and try again, or use the bundled firmware.</source>
        <translation>%1 的固件目录未在 %2 秒内收到。请检查网络连接后重试，或使用随附的固件。</translation>
    </message>
    <message>
        <source>%1 is larger than a firmware catalogue can be (%2 bytes), so it was not read. Check the catalogue&apos;s address.</source>
        <translation>%1 超过了固件目录的大小上限（%2 字节），因此未读取。请检查目录的地址。</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 does not carry a valid signature of this updater&apos;s publisher, so it was not used. Ask its publisher for a signed catalogue, or use the bundled firmware.</source>
        <translation>%1 的固件目录没有本更新程序发布者的有效签名，因此未使用。请向该目录的发布者索取已签名的目录，或使用随附的固件。</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 cannot be used: %2. Ask its publisher to correct it, or use the bundled firmware.</source>
        <translation>无法使用 %1 的固件目录：%2。请让该目录的发布者更正，或使用随附的固件。</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 was published %2, before the one already seen (%3), so it was not used: an old catalogue could bring back a withdrawn version. Use the current catalogue.</source>
        <translation>%1 的固件目录发布于 %2，早于之前已读取的目录（%3），因此未使用：旧目录可能会让已撤回的版本重新出现。请使用当前的目录。</translation>
    </message>
    <message>
        <source>Offline: the firmware catalogue published %1, as last seen, is shown. Connect to the network to see newer versions.</source>
        <translation>离线：显示的是上次读取的、发布于 %1 的固件目录。请连接网络以查看更新的版本。</translation>
    </message>
    <message>
        <source>it is not JSON (%1)</source>
        <translation>它不是 JSON（%1）</translation>
    </message>
    <message>
        <source>schema %1 is not supported</source>
        <translation>不支持架构 %1</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>缺少 %1</translation>
    </message>
    <message>
        <source>%1 is not a field of a catalogue</source>
        <translation>%1 不是目录的字段</translation>
    </message>
    <message>
        <source>%1 is not valid</source>
        <translation>%1 无效</translation>
    </message>
    <message>
        <source>firmware %1 is listed twice</source>
        <translation>固件 %1 被列出了两次</translation>
    </message>
    <message>
        <source>Firmware %1 is not in the firmware catalogue. Choose one of the versions it lists.</source>
        <translation>固件 %1 不在固件目录中。请从目录列出的版本中选择一个。</translation>
    </message>
    <message>
        <source>Firmware %1 was withdrawn by its publisher and is not installed. Choose another version.</source>
        <translation>固件 %1 已被其发布者撤回，不会安装。请选择其他版本。</translation>
    </message>
    <message>
        <source>The image of firmware %1 could not be read from %2 (%3). Check the network connection and try again.</source>
        <translation>无法从 %2 读取固件 %1 的映像（%3）。请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>The download of firmware %1 stopped: nothing arrived for %2 s. Check the network connection and try again.</source>
        <translation>固件 %1 的下载已停止：%2 秒内没有收到任何数据。请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>The image of firmware %1 is larger than the %2 bytes the catalogue declares, so it was not used. Choose another version, or try again later.</source>
        <translation>固件 %1 的映像大于目录声明的 %2 字节，因此未使用。请选择其他版本，或稍后重试。</translation>
    </message>
    <message>
        <source>The image of firmware %1 ended after %2 of its %3 bytes. Check the network connection and try again.</source>
        <translation>固件 %1 的映像共 %3 字节，只收到 %2 字节就中断了。请检查网络连接后重试。</translation>
    </message>
    <message>
        <source>The image of firmware %1 does not match the SHA-256 the catalogue declares, so it was not used. Choose another version, or try again later.</source>
        <translation>固件 %1 的映像与目录声明的 SHA-256 不符，因此未使用。请选择其他版本，或稍后重试。</translation>
    </message>
</context>
<context>
    <name>FileTexts</name>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>无法使用 %1：%2</translation>
    </message>
    <message>
        <source>it could not be read (%1)</source>
        <translation>无法读取（%1）</translation>
    </message>
    <message>
        <source>Firmware image refused: %1</source>
        <translation>固件映像被拒绝：%1</translation>
    </message>
    <message>
        <source>Bundled %1.bin refused: a development image, not firmware</source>
        <translation>随附的 %1.bin 被拒绝：这是开发用映像，不是固件</translation>
    </message>
    <message>
        <source>Firmware image: version %1, project %2, built %3</source>
        <translation>固件映像：版本 %1，项目 %2，构建于 %3</translation>
    </message>
    <message>
        <source>Could not read file: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
    <message>
        <source>%1 is not a valid machine configuration: %2</source>
        <translation>%1 不是有效的机器配置：%2</translation>
    </message>
    <message>
        <source>The development set&apos;s configurations are only for simulated plotters</source>
        <translation>开发套件的配置仅适用于模拟绘图仪</translation>
    </message>
    <message>
        <source>  size: %1 bytes</source>
        <translation>  大小：%1 字节</translation>
    </message>
    <message>
        <source>  chip: %1 (chip id %2)</source>
        <translation>  芯片：%1（芯片 ID %2）</translation>
    </message>
    <message>
        <source>  version: %1</source>
        <translation>  版本：%1</translation>
    </message>
    <message>
        <source>  project: %1</source>
        <translation>  项目：%1</translation>
    </message>
    <message>
        <source>  built: %1</source>
        <translation>  构建于：%1</translation>
    </message>
    <message>
        <source>  partition: fits (the application partition holds %1 bytes)</source>
        <translation>  分区：可容纳（应用分区可容纳 %1 字节）</translation>
    </message>
    <message>
        <source>  partition: too large (the application partition holds %1 bytes)</source>
        <translation>  分区：过大（应用分区可容纳 %1 字节）</translation>
    </message>
    <message>
        <source>  partition: unknown (no partition table in the resources)</source>
        <translation>  分区：未知（资源中没有分区表）</translation>
    </message>
    <message>
        <source>  meta: none</source>
        <translation>  meta：无</translation>
    </message>
    <message>
        <source>  result: passes</source>
        <translation>  结果：通过</translation>
    </message>
    <message>
        <source>  result: refused</source>
        <translation>  结果：被拒绝</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>%1 is neither a firmware image (.bin) nor a machine configuration (.yaml, .yml)</source>
        <translation>%1 既不是固件映像（.bin），也不是机器配置（.yaml、.yml）</translation>
    </message>
    <message>
        <source>All files pass</source>
        <translation>所有文件均通过</translation>
    </message>
    <message>
        <source>%1 of %2 files refused</source>
        <translation>%2 个文件中有 %1 个被拒绝</translation>
    </message>
    <message>
        <source>Could not save log: %1</source>
        <translation>无法保存日志：%1</translation>
    </message>
</context>
<context>
    <name>FirmwareJobTexts</name>
    <message>
        <source>Device connected</source>
        <translation>设备已连接</translation>
    </message>
    <message>
        <source>Waiting for device…</source>
        <translation>正在等待设备…</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>未连接设备</translation>
    </message>
    <message>
        <source>Another operation is already running</source>
        <translation>另一项操作正在进行</translation>
    </message>
    <message>
        <source>Updating firmware v%1…</source>
        <translation>正在将固件更新到 v%1…</translation>
    </message>
    <message>
        <source>Updating firmware (custom: %1)…</source>
        <translation>正在更新固件（自定义：%1）…</translation>
    </message>
    <message>
        <source>Failed to load custom firmware: %1</source>
        <translation>无法加载自定义固件：%1</translation>
    </message>
    <message>
        <source>Bundled firmware not found</source>
        <translation>找不到随附的固件</translation>
    </message>
    <message>
        <source>Checking device status…</source>
        <translation>正在检查设备状态…</translation>
    </message>
    <message>
        <source>Device not responding — writing boot partitions + firmware.</source>
        <translation>设备没有响应 — 将写入引导分区和固件。</translation>
    </message>
    <message>
        <source>Device running firmware %1 — updating firmware only.</source>
        <translation>设备正在运行固件 %1 — 仅更新固件。</translation>
    </message>
    <message>
        <source>Flash stub not found in bundle</source>
        <translation>程序包中找不到闪存写入桩程序</translation>
    </message>
    <message>
        <source>Missing bootloader resources for full flash</source>
        <translation>缺少完整写入所需的引导程序资源</translation>
    </message>
    <message>
        <source>Firmware update complete.</source>
        <translation>固件更新完成。</translation>
    </message>
    <message>
        <source>NOTE: Flash was erased. Use Config &gt; Update Config to upload the configuration for your machine.</source>
        <translation>注意：闪存已被擦除。请通过“配置 &gt; 更新配置”为您的机器上传配置。</translation>
    </message>
    <message>
        <source>NOTE: Flash was erased. Run teskal-flash upload-config to upload the configuration for your machine.</source>
        <translation>注意：闪存已被擦除。请运行 teskal-flash upload-config 为您的机器上传配置。</translation>
    </message>
    <message>
        <source>Once the machine runs, %1 will be put back.</source>
        <translation>机器运行后，将恢复%1。</translation>
    </message>
    <message>
        <source>Firmware version %1</source>
        <translation>固件版本 %1</translation>
    </message>
    <message>
        <source>Using bundled firmware</source>
        <translation>使用随附的固件</translation>
    </message>
    <message>
        <source>Custom firmware: %1</source>
        <translation>自定义固件：%1</translation>
    </message>
    <message>
        <source>Custom firmware: unknown</source>
        <translation>自定义固件：未知</translation>
    </message>
    <message>
        <source>Checking that the machine starts…</source>
        <translation>正在检查机器能否启动…</translation>
    </message>
    <message>
        <source>Config file not found in bundle: %1</source>
        <translation>程序包中找不到配置文件：%1</translation>
    </message>
    <message>
        <source>Preparing %1 config%2</source>
        <translation>正在准备 %1 配置%2</translation>
    </message>
    <message>
        <source>Preparing %1%2</source>
        <translation>正在准备 %1%2</translation>
    </message>
    <message>
        <source>Uploading config file...</source>
        <translation>正在上传配置文件...</translation>
    </message>
    <message>
        <source>Upload successful; restarting machine.</source>
        <translation>上传成功，正在重启机器。</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>准备中</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Writing firmware: stopping now can leave the machine unable to start. Press Ctrl+C again to stop.</source>
        <translation>正在写入固件：现在停止可能导致机器无法启动。再按一次 Ctrl+C 停止。</translation>
    </message>
    <message>
        <source>Partition table: present</source>
        <translation>分区表：存在</translation>
    </message>
    <message>
        <source>Partition table: absent</source>
        <translation>分区表：不存在</translation>
    </message>
    <message>
        <source>1 plotter connected</source>
        <translation>已连接 1 台绘图仪</translation>
    </message>
    <message>
        <source>%1 plotters connected</source>
        <translation>已连接 %1 台绘图仪</translation>
    </message>
    <message>
        <source>Could not start the simulated plotter: %1</source>
        <translation>无法启动模拟绘图仪：%1</translation>
    </message>
</context>
<context>
    <name>OutcomeTexts</name>
    <message>
        <source>No device found. Is it connected?</source>
        <translation>未找到设备。设备已连接吗？</translation>
    </message>
    <message>
        <source>No device found. Is it connected? Run teskal-flash doctor to see why.</source>
        <translation>未找到设备。设备已连接吗？运行 teskal-flash doctor 查看原因。</translation>
    </message>
    <message>
        <source>Could not open serial port. Is another app using it?</source>
        <translation>无法打开串口。是否有其他应用正在使用它？</translation>
    </message>
    <message>
        <source>Failed to sync with device. Try unplugging and reconnecting.</source>
        <translation>无法与设备同步。请拔下设备后重新连接。</translation>
    </message>
    <message>
        <source>Unexpected chip detected. Verify hardware.</source>
        <translation>检测到意外的芯片。请检查硬件。</translation>
    </message>
    <message>
        <source>Failed to upload communication stub.</source>
        <translation>无法上传通信桩程序。</translation>
    </message>
    <message>
        <source>Flash write failed. Try again.</source>
        <translation>写入闪存失败。请重试。</translation>
    </message>
    <message>
        <source>Verification failed. Flash may be corrupted — try again.</source>
        <translation>校验失败。闪存可能已损坏 — 请重试。</translation>
    </message>
    <message>
        <source>Config upload failed.</source>
        <translation>配置上传失败。</translation>
    </message>
    <message>
        <source>Operation timed out. Try unplugging and reconnecting.</source>
        <translation>操作超时。请拔下设备后重新连接。</translation>
    </message>
    <message>
        <source>Device disconnected during operation.</source>
        <translation>操作过程中设备已断开。</translation>
    </message>
    <message>
        <source>Unknown error (code %1)</source>
        <translation>未知错误（代码 %1）</translation>
    </message>
    <message>
        <source>Close any other program that uses the port, unplug and reconnect the machine, and try again.</source>
        <translation>请关闭所有正在使用该端口的其他程序，拔下并重新连接机器，然后重试。</translation>
    </message>
    <message>
        <source>Unplug the machine, plug it in again, and try again.</source>
        <translation>请拔下机器，重新插上，然后重试。</translation>
    </message>
    <message>
        <source>This controller cannot take this firmware; contact support before trying again.</source>
        <translation>此控制器无法使用此固件；请先联系支持人员，再重试。</translation>
    </message>
    <message>
        <source>Try again; if it fails again, use another USB cable or port.</source>
        <translation>请重试；如果再次失败，请换一根 USB 线或换一个 USB 接口。</translation>
    </message>
    <message>
        <source>Firmware %1 installed and running.</source>
        <translation>固件 %1 已安装并正在运行。</translation>
    </message>
    <message>
        <source>Firmware installed and running.</source>
        <translation>固件已安装并正在运行。</translation>
    </message>
    <message>
        <source>Firmware written and verified, but the machine reports version %1, not %2.</source>
        <translation>固件已写入并校验，但机器报告的版本是 %1，而不是 %2。</translation>
    </message>
    <message>
        <source>Firmware written and verified, but the machine did not answer to confirm that it runs.</source>
        <translation>固件已写入并校验，但机器没有应答，无法确认它在运行。</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it restarts in a loop.</source>
        <translation>固件已写入，但机器无法启动：它在反复重启。</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it crashed at start-up.</source>
        <translation>固件已写入，但机器无法启动：它在启动时崩溃了。</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it finds no firmware to start.</source>
        <translation>固件已写入，但机器无法启动：它找不到可启动的固件。</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: its power supply is too weak.</source>
        <translation>固件已写入，但机器无法启动：它的电源功率不足。</translation>
    </message>
    <message>
        <source>Configuration uploaded; the machine restarted with it.</source>
        <translation>配置已上传；机器已使用该配置重新启动。</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine did not answer after its restart.</source>
        <translation>配置已上传，但机器重启后没有应答。</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it restarts in a loop.</source>
        <translation>配置已上传，但机器无法启动：它在反复重启。</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it crashed at start-up.</source>
        <translation>配置已上传，但机器无法启动：它在启动时崩溃了。</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it finds no firmware to start.</source>
        <translation>配置已上传，但机器无法启动：它找不到可启动的固件。</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: its power supply is too weak.</source>
        <translation>配置已上传，但机器无法启动：它的电源功率不足。</translation>
    </message>
    <message>
        <source>The machine rejected its configuration:</source>
        <translation>机器拒绝了它的配置：</translation>
    </message>
    <message>
        <source>Plug in the machine&apos;s own power supply (USB power is not enough), then try again.</source>
        <translation>请接上机器自己的电源适配器（USB 供电不够），然后重试。</translation>
    </message>
    <message>
        <source>Correct the configuration and upload it again, or upload a product&apos;s configuration from Config &gt; Update Config.</source>
        <translation>请修正配置后重新上传，或通过“配置 &gt; 更新配置”上传某个产品的配置。</translation>
    </message>
    <message>
        <source>Correct the configuration and run teskal-flash upload-config again, or upload a product&apos;s with --product NAME.</source>
        <translation>请修正配置后重新运行 teskal-flash upload-config，或用 --product NAME 上传某个产品的配置。</translation>
    </message>
    <message>
        <source>Run the update again.</source>
        <translation>请重新运行更新。</translation>
    </message>
    <message>
        <source>Run teskal-flash flash again.</source>
        <translation>请重新运行 teskal-flash flash。</translation>
    </message>
    <message>
        <source>Check that the machine is switched on and connected; if it still does not answer, run the update again.</source>
        <translation>请检查机器是否已开机并连接；如果仍然没有应答，请重新运行更新。</translation>
    </message>
    <message>
        <source>Check that the machine is switched on and connected, then run teskal-flash version.</source>
        <translation>请检查机器是否已开机并连接，然后运行 teskal-flash version。</translation>
    </message>
    <message>
        <source>Press Repair… to erase the machine, install the firmware again and put back your settings. If it keeps happening, save the log (File &gt; Save Log…) for support.</source>
        <translation>按“修复…”可擦除机器、重新安装固件并恢复您的设置。如果问题反复出现，请保存日志（文件 &gt; 保存日志…）并提供给支持人员。</translation>
    </message>
    <message>
        <source>Run teskal-flash repair to erase the machine, install the firmware again and put back your settings. If it keeps happening, keep this output for support.</source>
        <translation>运行 teskal-flash repair 可擦除机器、重新安装固件并恢复您的设置。如果问题反复出现，请保留此输出并提供给支持人员。</translation>
    </message>
    <message>
        <source>ended without a result</source>
        <translation>结束时没有结果</translation>
    </message>
    <message>
        <source>ended abnormally after its result</source>
        <translation>给出结果后异常结束</translation>
    </message>
    <message>
        <source>ended abnormally after its result: %1</source>
        <translation>给出结果后异常结束：%1</translation>
    </message>
</context>
<context>
    <name>PortTexts</name>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 不存在。</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 不是串口。</translation>
    </message>
    <message>
        <source>Permission denied on %1 (group %2).</source>
        <translation>对 %1 的访问被拒绝（用户组 %2）。</translation>
    </message>
    <message>
        <source>Permission denied on %1 (owner %2, mode %3).</source>
        <translation>对 %1 的访问被拒绝（所有者 %2，权限 %3）。</translation>
    </message>
    <message>
        <source>Permission denied on %1.</source>
        <translation>对 %1 的访问被拒绝。</translation>
    </message>
    <message>
        <source>%1 is in use by %2 (pid %3).</source>
        <translation>%1 正被 %2 使用（pid %3）。</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 正被其他程序使用。</translation>
    </message>
    <message>
        <source>%1 does not answer: its device has gone.</source>
        <translation>%1 没有响应：其设备已不存在。</translation>
    </message>
    <message>
        <source>%1 can be used.</source>
        <translation>%1 可以使用。</translation>
    </message>
    <message>
        <source>Plug the plotter in, or name another port.</source>
        <translation>请插上绘图仪，或指定其他端口。</translation>
    </message>
    <message>
        <source>Name the plotter&apos;s port, for example /dev/ttyACM0.</source>
        <translation>请指定绘图仪的端口，例如 /dev/ttyACM0。</translation>
    </message>
    <message>
        <source>Install the permission rule (%1).</source>
        <translation>请安装权限规则（%1）。</translation>
    </message>
    <message>
        <source>You are in the group %1, but this session began before you joined it: log out and in again.</source>
        <translation>您已在用户组 %1 中，但本次会话在您加入之前就已开始：请注销后重新登录。</translation>
    </message>
    <message>
        <source>Install the permission rule (%1), or join the group: sudo usermod -aG %2 $USER, then log out and in again.</source>
        <translation>请安装权限规则（%1），或加入该用户组：sudo usermod -aG %2 $USER，然后注销并重新登录。</translation>
    </message>
    <message>
        <source>Close that program and try again.</source>
        <translation>请关闭该程序，然后重试。</translation>
    </message>
    <message>
        <source>Close it and try again.</source>
        <translation>请关闭它，然后重试。</translation>
    </message>
    <message>
        <source>Unplug the plotter, plug it in again and try again.</source>
        <translation>请拔下绘图仪，重新插上，然后重试。</translation>
    </message>
    <message>
        <source>Connection Check</source>
        <translation>连接检查</translation>
    </message>
    <message>
        <source>button below</source>
        <translation>下方的按钮</translation>
    </message>
    <message>
        <source>sudo cp %1 /etc/udev/rules.d/ &amp;&amp; sudo udevadm control --reload &amp;&amp; sudo udevadm trigger</source>
        <translation>sudo cp %1 /etc/udev/rules.d/ &amp;&amp; sudo udevadm control --reload &amp;&amp; sudo udevadm trigger</translation>
    </message>
    <message>
        <source>60-teskal-firmware-updater.rules in /etc/udev/rules.d</source>
        <translation>/etc/udev/rules.d 中的 60-teskal-firmware-updater.rules</translation>
    </message>
    <message>
        <source>Plotter seen on USB (303a:1001).</source>
        <translation>已在 USB 上发现绘图仪（303a:1001）。</translation>
    </message>
    <message>
        <source>Plotter seen on USB (303a:1001, serial %1).</source>
        <translation>已在 USB 上发现绘图仪（303a:1001，序列号 %1）。</translation>
    </message>
    <message>
        <source>No plotter seen on USB.</source>
        <translation>未在 USB 上发现绘图仪。</translation>
    </message>
    <message>
        <source>Switch it on, try another USB port, and use a cable that carries data: some cables only charge.</source>
        <translation>请打开电源，换一个 USB 接口，并使用能传输数据的线缆：有些线缆只能充电。</translation>
    </message>
    <message>
        <source>Serial port %1 made for it by %2.</source>
        <translation>%2 已为它创建串口 %1。</translation>
    </message>
    <message>
        <source>No serial port made for it: the kernel&apos;s cdc_acm driver is missing.</source>
        <translation>未为它创建串口：缺少内核的 cdc_acm 驱动。</translation>
    </message>
    <message>
        <source>Install your system&apos;s extra kernel modules, or load the driver: sudo modprobe cdc_acm</source>
        <translation>请安装系统的额外内核模块，或加载该驱动：sudo modprobe cdc_acm</translation>
    </message>
    <message>
        <source>No serial port made for it yet.</source>
        <translation>尚未为它创建串口。</translation>
    </message>
    <message>
        <source>Wait a moment; if it stays so, unplug the plotter and plug it in again.</source>
        <translation>请稍候；如果一直如此，请拔下绘图仪后重新插上。</translation>
    </message>
    <message>
        <source>You may open %1.</source>
        <translation>您可以打开 %1。</translation>
    </message>
    <message>
        <source>No other program is using %1.</source>
        <translation>没有其他程序在使用 %1。</translation>
    </message>
    <message>
        <source>Another plotter: %1.</source>
        <translation>另一台绘图仪：%1。</translation>
    </message>
    <message>
        <source>Another plotter (serial %1): %2.</source>
        <translation>另一台绘图仪（序列号 %1）：%2。</translation>
    </message>
    <message>
        <source>without a port</source>
        <translation>没有端口</translation>
    </message>
    <message>
        <source>Not a plotter: %1 on %2.</source>
        <translation>不是绘图仪：%2 上的 %1。</translation>
    </message>
    <message>
        <source>Ready: the plotter on %1 can be used.</source>
        <translation>就绪：%1 上的绘图仪可以使用。</translation>
    </message>
    <message>
        <source>No plotter is ready to use.</source>
        <translation>没有可用的绘图仪。</translation>
    </message>
    <message>
        <source>The plotter keeps restarting.</source>
        <translation>绘图仪在反复重启。</translation>
    </message>
    <message>
        <source>If its controller board has a BOOT button, hold it while you plug the plotter in, then press Repair.</source>
        <translation>如果控制板上有 BOOT 按钮，请按住它并插上绘图仪，然后按“修复”。</translation>
    </message>
    <message>
        <source>If its controller board has a BOOT button, hold it while you plug the plotter in, then run teskal-flash repair.</source>
        <translation>如果控制板上有 BOOT 按钮，请按住它并插上绘图仪，然后运行 teskal-flash repair。</translation>
    </message>
    <message>
        <source>Plotter not found?</source>
        <translation>找不到绘图仪？</translation>
    </message>
    <message>
        <source>Checked again every second. This window closes once the plotter can be used.</source>
        <translation>每秒重新检查一次。绘图仪可以使用时，此窗口会自动关闭。</translation>
    </message>
    <message>
        <source>&amp;Install Permission Rule…</source>
        <translation>安装权限规则(&amp;I)…</translation>
    </message>
    <message>
        <source>pkexec or the rule&apos;s installer is missing. Run by hand: %1</source>
        <translation>缺少 pkexec 或规则安装程序。请手动运行：%1</translation>
    </message>
    <message>
        <source>The permission rule&apos;s installer could not be started.</source>
        <translation>无法启动权限规则安装程序。</translation>
    </message>
</context>
<context>
    <name>ReleaseTexts</name>
    <message>
        <source>No firmware catalogue is configured. Choose one with File &gt; Firmware Catalogue…, or use the bundled firmware.</source>
        <translation>未配置固件目录。请通过“文件 &gt; 固件目录…”选择一个，或使用随附的固件。</translation>
    </message>
    <message>
        <source>No firmware catalogue is configured. Name one with --catalogue URL|FILE|FOLDER, or use the bundled firmware.</source>
        <translation>未配置固件目录。请用 --catalogue URL|FILE|FOLDER 指定一个，或使用随附的固件。</translation>
    </message>
    <message>
        <source>Fetching firmware %1 from the catalogue at %2…</source>
        <translation>正在从 %2 的目录获取固件 %1…</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>正在下载</translation>
    </message>
    <message>
        <source>Updating firmware %1 from the catalogue…</source>
        <translation>正在将固件更新到目录中的 %1…</translation>
    </message>
    <message>
        <source>Firmware %1 is older than the firmware %2 this machine runs, so nothing was written.</source>
        <translation>固件 %1 比这台机器正在运行的固件 %2 旧，因此未写入任何内容。</translation>
    </message>
    <message>
        <source>Firmware %1 is older than the firmware %2 this machine runs, so nothing was written. Add --allow-older to install it anyway.</source>
        <translation>固件 %1 比这台机器正在运行的固件 %2 旧，因此未写入任何内容。如仍要安装，请加上 --allow-older。</translation>
    </message>
    <message>
        <source>bundled</source>
        <translation>随附</translation>
    </message>
    <message>
        <source>catalogue</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>stable</source>
        <translation>稳定版</translation>
    </message>
    <message>
        <source>beta</source>
        <translation>测试版</translation>
    </message>
    <message>
        <source>1 firmware version can be installed.</source>
        <translation>有 1 个固件版本可以安装。</translation>
    </message>
    <message>
        <source>%1 firmware versions can be installed.</source>
        <translation>有 %1 个固件版本可以安装。</translation>
    </message>
    <message>
        <source>Firmware &amp;Catalogue…</source>
        <translation>固件目录(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose Firmware &amp;Version…</source>
        <translation>选择固件版本(&amp;V)…</translation>
    </message>
    <message>
        <source>Firmware version %1 from the catalogue</source>
        <translation>目录中的固件版本 %1</translation>
    </message>
    <message>
        <source>Firmware %1 is available</source>
        <translation>固件 %1 现已可用</translation>
    </message>
    <message>
        <source>Firmware Catalogue</source>
        <translation>固件目录</translation>
    </message>
    <message>
        <source>Where the firmware catalogue is: an http:// or https:// address, a catalogue.json file, or a folder that holds one (for instance on a USB stick).</source>
        <translation>固件目录所在的位置：http:// 或 https:// 地址、catalogue.json 文件，或包含该文件的文件夹（例如 U 盘上的文件夹）。</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>选择文件(&amp;F)…</translation>
    </message>
    <message>
        <source>Choose F&amp;older…</source>
        <translation>选择文件夹(&amp;O)…</translation>
    </message>
    <message>
        <source>Firmware catalogue: %1</source>
        <translation>固件目录：%1</translation>
    </message>
    <message>
        <source>Choose Firmware Version</source>
        <translation>选择固件版本</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Show &amp;beta versions</source>
        <translation>显示测试版(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Use This Version</source>
        <translation>使用此版本(&amp;U)</translation>
    </message>
    <message>
        <source>ran on this machine</source>
        <translation>曾在这台机器上运行</translation>
    </message>
    <message>
        <source>Reading the firmware catalogue…</source>
        <translation>正在读取固件目录…</translation>
    </message>
    <message>
        <source>No firmware catalogue is configured: only the bundled firmware is listed. Choose a catalogue with File &gt; Firmware Catalogue….</source>
        <translation>未配置固件目录：仅列出随附的固件。请通过“文件 &gt; 固件目录…”选择一个目录。</translation>
    </message>
    <message>
        <source>Firmware %1 from the catalogue will be written.</source>
        <translation>将写入目录中的固件 %1。</translation>
    </message>
    <message>
        <source>Install an Older Version?</source>
        <translation>要安装旧版本吗？</translation>
    </message>
    <message>
        <source>This machine runs firmware %1. Install the older firmware %2 in its place?</source>
        <translation>这台机器正在运行固件 %1。要改为安装较旧的固件 %2 吗？</translation>
    </message>
    <message>
        <source>&amp;Install Older Version</source>
        <translation>安装旧版本(&amp;I)</translation>
    </message>
</context>
<context>
    <name>SnapshotTexts</name>
    <message>
        <source>Taking a snapshot of the whole machine…</source>
        <translation>正在为整台机器创建快照…</translation>
    </message>
    <message>
        <source>Snapshot of the whole machine saved to %1 (%2 bytes).</source>
        <translation>整台机器的快照已保存到 %1（%2 字节）。</translation>
    </message>
    <message>
        <source>the machine&apos;s flash holds nothing worth keeping (no bootloader and no partition table)</source>
        <translation>机器的闪存中没有值得保留的内容（既没有引导程序，也没有分区表）</translation>
    </message>
    <message>
        <source>No snapshot of the whole machine could be taken: %1</source>
        <translation>无法为整台机器创建快照：%1</translation>
    </message>
    <message>
        <source>the flasher stub refused to read the flash</source>
        <translation>闪存写入桩程序拒绝读取闪存</translation>
    </message>
    <message>
        <source>the machine sent nothing for 5 s while its flash was read</source>
        <translation>读取闪存时，机器 5 秒内没有发送任何数据</translation>
    </message>
    <message>
        <source>what the machine sent of its flash arrived damaged</source>
        <translation>机器发来的闪存数据到达时已损坏</translation>
    </message>
    <message>
        <source>the MD5 the machine computed differs from that of the bytes received</source>
        <translation>机器计算出的 MD5 与收到的数据的 MD5 不同</translation>
    </message>
    <message>
        <source>the snapshot could not be written on this computer</source>
        <translation>无法在这台电脑上写入快照</translation>
    </message>
    <message>
        <source>the flash could not be read (%1)</source>
        <translation>无法读取闪存（%1）</translation>
    </message>
    <message>
        <source>%1 Nothing was written.</source>
        <translation>%1 未写入任何内容。</translation>
    </message>
    <message>
        <source>The machine was left as it was. Check the USB cable and try again.</source>
        <translation>机器保持原样，未作改动。请检查 USB 线后重试。</translation>
    </message>
    <message>
        <source>No snapshot is needed: the machine&apos;s flash holds nothing worth keeping.</source>
        <translation>无需快照：机器的闪存中没有值得保留的内容。</translation>
    </message>
    <message>
        <source>Whole machine backed up</source>
        <translation>整台机器已备份</translation>
    </message>
    <message>
        <source>application</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>Putting back the snapshot of the whole machine from %1 (%2)…</source>
        <translation>正在恢复整台机器在 %1 的快照（%2）…</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>无法使用 %1：%2</translation>
    </message>
    <message>
        <source>Could not read the snapshot %1: %2</source>
        <translation>无法读取快照 %1：%2</translation>
    </message>
    <message>
        <source>No snapshot of the machine %1 in %2</source>
        <translation>%2 中没有机器 %1 的快照</translation>
    </message>
    <message>
        <source>No snapshot %1 in %2</source>
        <translation>%2 中没有快照 %1</translation>
    </message>
    <message>
        <source>This snapshot was taken of the machine %1, not of %2; it carries that machine&apos;s settings and network credentials. Add --other-machine to put it on %2 anyway.</source>
        <translation>此快照取自机器 %1，而不是 %2；其中包含那台机器的设置和网络凭据。如仍要将它恢复到 %2 上，请加上 --other-machine。</translation>
    </message>
    <message>
        <source>This snapshot was taken of the machine %1. It carries that machine&apos;s settings and network credentials. Put it on this machine (%2) anyway?</source>
        <translation>此快照取自机器 %1，其中包含那台机器的设置和网络凭据。仍要将它恢复到这台机器（%2）上吗？</translation>
    </message>
    <message>
        <source>&amp;Restore Anyway</source>
        <translation>仍然恢复(&amp;R)</translation>
    </message>
    <message>
        <source>Machine put back as it was on %1: it runs firmware %2.</source>
        <translation>机器已恢复到 %1 时的状态：正在运行固件 %2。</translation>
    </message>
    <message>
        <source>Machine put back as it was on %1: it runs.</source>
        <translation>机器已恢复到 %1 时的状态：正在运行。</translation>
    </message>
    <message>
        <source>Press Undo Update to put the machine back as it was before the update, or Repair… to erase it and install the firmware again.</source>
        <translation>按“撤销更新”可将机器恢复到更新前的状态，按“修复…”可擦除机器并重新安装固件。</translation>
    </message>
    <message>
        <source>To put the machine back as it was before the update, run: teskal-flash restore-machine %1</source>
        <translation>要将机器恢复到更新前的状态，请运行：teskal-flash restore-machine %1</translation>
    </message>
    <message>
        <source>The machine was put back as it was before the update.</source>
        <translation>机器已恢复到更新前的状态。</translation>
    </message>
    <message>
        <source>Putting the machine back as it was before the update…</source>
        <translation>正在将机器恢复到更新前的状态…</translation>
    </message>
    <message>
        <source>The machine could not be put back: %1</source>
        <translation>无法恢复机器：%1</translation>
    </message>
    <message>
        <source>Back Up &amp;Whole Machine…</source>
        <translation>备份整台机器(&amp;W)…</translation>
    </message>
    <message>
        <source>Restore W&amp;hole Machine…</source>
        <translation>恢复整台机器(&amp;H)…</translation>
    </message>
    <message>
        <source>&amp;Snapshot Before Writing</source>
        <translation>写入前创建快照(&amp;S)</translation>
    </message>
    <message>
        <source>Undo Update</source>
        <translation>撤销更新</translation>
    </message>
    <message>
        <source>Take a &amp;snapshot of the whole machine first</source>
        <translation>先为整台机器创建快照(&amp;S)</translation>
    </message>
    <message>
        <source>Restore Whole Machine</source>
        <translation>恢复整台机器</translation>
    </message>
    <message>
        <source>Ran</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Every snapshot of a whole machine is kept in %1. The connected machine&apos;s are on top, newest first.</source>
        <translation>每个整台机器的快照都保存在 %1 中。已连接机器的快照在最上面，最新的在前。</translation>
    </message>
    <message>
        <source>No snapshot has been taken yet. Config &gt; Back Up Whole Machine… takes one, and so does every firmware write with Options &gt; Snapshot Before Writing; they are kept in %1.</source>
        <translation>尚未创建任何快照。“配置 &gt; 备份整台机器…”会创建快照；启用“选项 &gt; 写入前创建快照”后，每次写入固件时也会创建。快照保存在 %1 中。</translation>
    </message>
    <message>
        <source>.</source>
        <comment>the full stop that ends a sentence</comment>
        <translation>。</translation>
    </message>
</context>
<context>
    <name>WindowTexts</name>
    <message>
        <source>%1 %2, built %3, bundled firmware %4</source>
        <translation>%1 %2，构建于 %3，随附固件 %4</translation>
    </message>
    <message>
        <source>Teskal Firmware Updater — simulated plotter</source>
        <translation>Teskal Firmware Updater — 模拟绘图仪</translation>
    </message>
    <message>
        <source>Teskal Firmware Updater is already running.</source>
        <translation>Teskal Firmware Updater 已在运行。</translation>
    </message>
    <message>
        <source>&amp;Teskal Firmware Updater</source>
        <translation>Teskal Firmware Updater(&amp;T)</translation>
    </message>
    <message>
        <source>About Teskal Firmware Updater</source>
        <translation>关于 Teskal Firmware Updater</translation>
    </message>
    <message>
        <source>&amp;About Teskal Firmware Updater</source>
        <translation>关于 Teskal Firmware Updater(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open Firmware File…</source>
        <translation>打开固件文件(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Use Bundled Firmware</source>
        <translation>使用随附的固件(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Save Log…</source>
        <translation>保存日志(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>选项(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Detailed Logging</source>
        <translation>详细日志(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Write Boot Partitions</source>
        <translation>写入引导分区(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Erase All Flash</source>
        <translation>擦除全部闪存(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Back Up Machine Config Before Upload</source>
        <translation>上传前备份机器配置(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Config</source>
        <translation>配置(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Update Config</source>
        <translation>更新配置(&amp;U)</translation>
    </message>
    <message>
        <source>No products configured</source>
        <translation>未配置任何产品</translation>
    </message>
    <message>
        <source>Select from &amp;Disk...</source>
        <translation>从磁盘选择(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Save Machine Config…</source>
        <translation>保存机器配置(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Compare With Machine…</source>
        <translation>与机器比较(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>选择文件(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Restore Machine Config…</source>
        <translation>恢复机器配置(&amp;R)…</translation>
    </message>
    <message>
        <source>Re&amp;pair Machine…</source>
        <translation>修复机器(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Connection Check…</source>
        <translation>连接检查(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Simulated Plotter</source>
        <translation>模拟绘图仪(&amp;S)</translation>
    </message>
    <message>
        <source>Starts: %1</source>
        <translation>启动方式：%1</translation>
    </message>
    <message>
        <source>Select a firmware binary (.bin)</source>
        <translation>选择固件二进制文件（.bin）</translation>
    </message>
    <message>
        <source>Select a configuration file (.yaml)</source>
        <translation>选择配置文件（.yaml）</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>保存日志</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>文本文件 (*.txt)</translation>
    </message>
    <message>
        <source>Save Machine Config</source>
        <translation>保存机器配置</translation>
    </message>
    <message>
        <source>YAML files (*.yaml *.yml)</source>
        <translation>YAML 文件 (*.yaml *.yml)</translation>
    </message>
    <message>
        <source>Choose a %1 file.</source>
        <translation>请选择 %1 文件。</translation>
    </message>
    <message>
        <source>Choose a %1 or %2 file.</source>
        <translation>请选择 %1 或 %2 文件。</translation>
    </message>
    <message>
        <source>Update Firmware</source>
        <translation>更新固件</translation>
    </message>
    <message>
        <source>Copy log to clipboard</source>
        <translation>将日志复制到剪贴板</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Restore Previous Configuration</source>
        <translation>恢复之前的配置</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>修复…</translation>
    </message>
    <message>
        <source>Erase All Flash also erases the machine&apos;s settings (config.yaml). Save them now and put them back after the update?</source>
        <translation>“擦除全部闪存”也会擦除机器的设置（config.yaml）。要现在保存，并在更新后恢复吗？</translation>
    </message>
    <message>
        <source>Erase all flash anyway? The settings will be lost.</source>
        <translation>仍要擦除全部闪存吗？设置将会丢失。</translation>
    </message>
    <message>
        <source>Try reading them again?</source>
        <translation>要再次尝试读取吗？</translation>
    </message>
    <message>
        <source>&amp;Save and Restore</source>
        <translation>保存并恢复(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Erase Without Saving</source>
        <translation>不保存直接擦除(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>重试(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>An update is running. Quitting now can leave the machine unable to start. Quit anyway?</source>
        <translation>正在更新。现在退出可能导致机器无法启动。仍要退出吗？</translation>
    </message>
    <message>
        <source>&amp;Keep Running</source>
        <translation>继续运行(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Quit Anyway</source>
        <translation>仍然退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Restore Machine Config</source>
        <translation>恢复机器配置</translation>
    </message>
    <message>
        <source>Co&amp;mpare With Machine</source>
        <translation>与机器比较(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>恢复(&amp;R)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>机器</translation>
    </message>
    <message>
        <source>Repair Machine</source>
        <translation>修复机器</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修复(&amp;R)</translation>
    </message>
    <message>
        <source>Put back:</source>
        <translation>恢复内容：</translation>
    </message>
    <message>
        <source>Newest backup of this machine (%1)</source>
        <translation>这台机器最新的备份（%1）</translation>
    </message>
    <message>
        <source>Current settings of this machine, saved first</source>
        <translation>这台机器当前的设置（先行保存）</translation>
    </message>
    <message>
        <source>Choose what goes back…</source>
        <translation>选择要恢复的内容…</translation>
    </message>
    <message>
        <source>Backup of %1 (%2)</source>
        <translation>%1 的备份（%2）</translation>
    </message>
    <message>
        <source>Stock configuration: %1</source>
        <translation>出厂配置：%1</translation>
    </message>
    <message>
        <source>No configuration</source>
        <translation>不恢复配置</translation>
    </message>
    <message>
        <source>Asking the machine&apos;s firmware whether it answers…</source>
        <translation>正在询问机器的固件是否有应答…</translation>
    </message>
    <message>
        <source>Compare With Machine — %1</source>
        <translation>与机器比较 — %1</translation>
    </message>
    <message>
        <source>&amp;Upload This Configuration</source>
        <translation>上传此配置(&amp;U)</translation>
    </message>
    <message>
        <source>By Key</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>By Line</source>
        <translation>按行</translation>
    </message>
    <message>
        <source>No key differs.</source>
        <translation>没有不同的键。</translation>
    </message>
    <message>
        <source>The files are the same line by line.</source>
        <translation>两个文件逐行相同。</translation>
    </message>
    <message>
        <source>The two configurations could not be compared by key; &quot;By Line&quot; shows how their texts differ.</source>
        <translation>无法按键比较这两份配置；“按行”显示了它们文本的差异。</translation>
    </message>
    <message>
        <source>The machine&apos;s config matches %1 by key: an upload would change no setting.</source>
        <translation>机器的配置按键与 %1 一致：上传不会改变任何设置。</translation>
    </message>
    <message>
        <source>1 setting differs between the machine&apos;s config and %1. Each line shows the machine&apos;s value → the new one; + marks a key only in %1, - a key only on the machine.</source>
        <translation>机器的配置与 %1 之间有 1 项设置不同。每行显示机器的值 → 新值；+ 表示仅在 %1 中的键，- 表示仅在机器上的键。</translation>
    </message>
    <message>
        <source>%1 settings differ between the machine&apos;s config and %2. Each line shows the machine&apos;s value → the new one; + marks a key only in %2, - a key only on the machine.</source>
        <translation>机器的配置与 %2 之间有 %1 项设置不同。每行显示机器的值 → 新值；+ 表示仅在 %2 中的键，- 表示仅在机器上的键。</translation>
    </message>
    <message>
        <source>Firmware v%1 (build %2)</source>
        <translation>固件 v%1（构建 %2）</translation>
    </message>
    <message>
        <source>Program version %1</source>
        <translation>程序版本 %1</translation>
    </message>
    <message>
        <source>Supported products:</source>
        <translation>支持的产品：</translation>
    </message>
    <message>
        <source>Licenses:</source>
        <translation>许可证：</translation>
    </message>
    <message>
        <source>Firmware: GPL v3 (based on FluidNC)</source>
        <translation>固件：GPL v3（基于 FluidNC）</translation>
    </message>
    <message>
        <source>Flash stub: Apache License 2.0</source>
        <translation>闪存写入桩程序：Apache License 2.0</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>源代码：</translation>
    </message>
    <message>
        <source>© 2026 Corvane. All rights reserved.</source>
        <translation>© 2026 Corvane。保留所有权利。</translation>
    </message>
</context>
</TS>
