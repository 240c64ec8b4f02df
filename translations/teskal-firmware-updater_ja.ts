<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AccessibilityTexts</name>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Copy Log</source>
        <translation>ログをコピー</translation>
    </message>
    <message>
        <source>Writing firmware</source>
        <translation>ファームウェアを書き込み中</translation>
    </message>
    <message>
        <source>Uploading configuration</source>
        <translation>設定をアップロード中</translation>
    </message>
    <message>
        <source>Reading the machine&apos;s configuration</source>
        <translation>マシンの設定を読み込み中</translation>
    </message>
    <message>
        <source>Checking that the machine starts</source>
        <translation>マシンの起動を確認中</translation>
    </message>
</context>
<context>
    <name>BackupTexts</name>
    <message>
        <source>Machine config saved to %1 (%2 bytes)</source>
        <translation>マシンの設定を %1 に保存しました（%2 バイト）</translation>
    </message>
    <message>
        <source>Could not save the machine config to %1: %2</source>
        <translation>マシンの設定を %1 に保存できませんでした: %2</translation>
    </message>
    <message>
        <source>Could not read config.yaml from the machine: %1</source>
        <translation>マシンから config.yaml を読み込めませんでした: %1</translation>
    </message>
    <message>
        <source>Failed to open port</source>
        <translation>ポートを開けませんでした</translation>
    </message>
    <message>
        <source>XModem download: invalid arguments</source>
        <translation>XModem ダウンロード: 引数が正しくありません</translation>
    </message>
    <message>
        <source>XModem download: invalid file name</source>
        <translation>XModem ダウンロード: ファイル名が正しくありません</translation>
    </message>
    <message>
        <source>XModem download: could not send the command</source>
        <translation>XModem ダウンロード: コマンドを送信できませんでした</translation>
    </message>
    <message>
        <source>XModem download: no block received</source>
        <translation>XModem ダウンロード: ブロックを受信できませんでした</translation>
    </message>
    <message>
        <source>XModem download: cancelled by the device</source>
        <translation>XModem ダウンロード: デバイスが中止しました</translation>
    </message>
    <message>
        <source>XModem download: file larger than 16 MiB</source>
        <translation>XModem ダウンロード: ファイルが 16 MiB を超えています</translation>
    </message>
    <message>
        <source>XModem download: block %1 failed 25 times</source>
        <translation>XModem ダウンロード: ブロック %1 が 25 回失敗しました</translation>
    </message>
    <message>
        <source>XModem download: could not answer the device</source>
        <translation>XModem ダウンロード: デバイスに応答できませんでした</translation>
    </message>
    <message>
        <source>XModem download: out of memory</source>
        <translation>XModem ダウンロード: メモリが不足しています</translation>
    </message>
    <message>
        <source>XModem download: failed (%1)</source>
        <translation>XModem ダウンロード: 失敗しました（%1）</translation>
    </message>
    <message>
        <source>Could not back up the machine config; the upload did not start: %1</source>
        <translation>マシンの設定をバックアップできなかったため、アップロードを開始しませんでした: %1</translation>
    </message>
    <message>
        <source>Machine config saved</source>
        <translation>マシンの設定を保存しました</translation>
    </message>
    <message>
        <source>Machine config compared</source>
        <translation>マシンの設定を比較しました</translation>
    </message>
    <message>
        <source>Machine config matches %1 by key</source>
        <translation>マシンの設定はキー単位で %1 と一致しています</translation>
    </message>
    <message>
        <source>Machine config differs from %1 in 1 key</source>
        <translation>マシンの設定は %1 と 1 個のキーが異なります</translation>
    </message>
    <message>
        <source>Machine config differs from %1 in %2 keys</source>
        <translation>マシンの設定は %1 と %2 個のキーが異なります</translation>
    </message>
    <message>
        <source>Equal by key</source>
        <translation>キー単位で同じ</translation>
    </message>
    <message>
        <source>Different</source>
        <translation>異なる</translation>
    </message>
    <message>
        <source>Could not prepare the backups folder %1 as a folder only you can read</source>
        <translation>バックアップ用フォルダー %1 を本人だけが読めるフォルダーとして準備できませんでした</translation>
    </message>
    <message>
        <source>Could not write the backup %1: %2</source>
        <translation>バックアップ %1 を書き込めませんでした: %2</translation>
    </message>
    <message>
        <source>No backup was kept: %1</source>
        <translation>バックアップは保存されませんでした: %1</translation>
    </message>
    <message>
        <source>Skipped the backup record %1: %2</source>
        <translation>バックアップの記録 %1 をスキップしました: %2</translation>
    </message>
    <message>
        <source>not a backup record</source>
        <translation>バックアップの記録ではありません</translation>
    </message>
    <message>
        <source>its copy %1 is missing</source>
        <translation>そのコピー %1 が見つかりません</translation>
    </message>
    <message>
        <source>its copy %1 has changed</source>
        <translation>そのコピー %1 が変更されています</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Compared</source>
        <translation>比較</translation>
    </message>
    <message>
        <source>Before upload</source>
        <translation>アップロード前</translation>
    </message>
    <message>
        <source>Before erase</source>
        <translation>消去前</translation>
    </message>
    <message>
        <source>%1  %2  %3  %4 bytes  %5  %6</source>
        <translation>%1  %2  %3  %4 バイト  %5  %6</translation>
    </message>
    <message>
        <source>No backups in %1</source>
        <translation>%1 にバックアップはありません</translation>
    </message>
    <message>
        <source>1 backup in %1</source>
        <translation>%1 にバックアップが 1 件あります</translation>
    </message>
    <message>
        <source>%1 backups in %2</source>
        <translation>%2 にバックアップが %1 件あります</translation>
    </message>
    <message>
        <source>No backup of the machine %1 in %2</source>
        <translation>%2 にマシン %1 のバックアップはありません</translation>
    </message>
    <message>
        <source>No backup %1 in %2</source>
        <translation>%2 にバックアップ %1 はありません</translation>
    </message>
    <message>
        <source>Every configuration read from a machine is kept in %1. The connected machine&apos;s are on top, newest first.</source>
        <translation>マシンから読み込んだ設定はすべて %1 に保存されます。接続中のマシンの設定が上に、新しいものから順に表示されます。</translation>
    </message>
    <message>
        <source>No configuration has been kept yet. Every configuration read from a machine (Save Machine Config, Compare With Machine, the backup before an upload, the save before Erase All Flash) is kept in %1.</source>
        <translation>まだ設定は保存されていません。マシンから読み込んだ設定（マシンの設定を保存、マシンと比較、アップロード前のバックアップ、「フラッシュ全体を消去」の前の保存）はすべて %1 に保存されます。</translation>
    </message>
    <message>
        <source>%1 (this machine)</source>
        <translation>%1（このマシン）</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 バイト</translation>
    </message>
    <message>
        <source>Saving the machine&apos;s settings before Erase All Flash…</source>
        <translation>「フラッシュ全体を消去」の前にマシンの設定を保存しています…</translation>
    </message>
    <message>
        <source>The machine&apos;s firmware does not answer, so its settings cannot be saved.</source>
        <translation>マシンのファームウェアが応答しないため、設定を保存できません。</translation>
    </message>
    <message>
        <source>Erasing all flash without saving the settings.</source>
        <translation>設定を保存せずにフラッシュ全体を消去しています。</translation>
    </message>
    <message>
        <source>Nothing was erased: %1</source>
        <translation>何も消去していません: %1</translation>
    </message>
    <message>
        <source>The settings read before the erase were not put back; they are kept in %1. Once the machine runs, restore them with Config &gt; Restore Machine Config….</source>
        <translation>消去前に読み込んだ設定は戻されていません。%1 に保存されています。マシンが動き出したら、設定 &gt; マシンの設定を復元… で復元してください。</translation>
    </message>
    <message>
        <source>The settings read before the erase were not put back; they are kept in %1. Once the machine runs, restore them with: teskal-flash restore-config --port %2 %3</source>
        <translation>消去前に読み込んだ設定は戻されていません。%1 に保存されています。マシンが動き出したら、次のコマンドで復元してください: teskal-flash restore-config --port %2 %3</translation>
    </message>
    <message>
        <source>To put back the configuration the machine had before: teskal-flash restore-config --port %1 %2</source>
        <translation>マシンの以前の設定を戻すには: teskal-flash restore-config --port %1 %2</translation>
    </message>
    <message>
        <source>Settings restored from the backup of %1.</source>
        <translation>%1 のバックアップから設定を復元しました。</translation>
    </message>
    <message>
        <source>Firmware %1 installed and running, with your settings restored from the backup of %2.</source>
        <translation>ファームウェア %1 をインストールし、動作しています。設定は %2 のバックアップから復元しました。</translation>
    </message>
    <message>
        <source>Firmware installed and running, with your settings restored from the backup of %1.</source>
        <translation>ファームウェアをインストールし、動作しています。設定は %1 のバックアップから復元しました。</translation>
    </message>
    <message>
        <source>firmware %1</source>
        <translation>ファームウェア %1</translation>
    </message>
    <message>
        <source>your settings from %1</source>
        <translation>%1 時点の設定</translation>
    </message>
    <message>
        <source>your current settings, saved first</source>
        <translation>現在の設定（先に保存します）</translation>
    </message>
    <message>
        <source>the stock configuration of %1</source>
        <translation>%1 の標準設定</translation>
    </message>
    <message>
        <source>Erase the machine, install %1, then put back %2.</source>
        <translation>マシンを消去し、%1 をインストールしてから、%2 を戻します。</translation>
    </message>
    <message>
        <source>Erase the machine and install %1, without a configuration.</source>
        <translation>マシンを消去して %1 をインストールします。設定は戻しません。</translation>
    </message>
    <message>
        <source>Machine repaired: it runs %1 with %2.</source>
        <translation>マシンを修復しました: %1 と %2 で動作しています。</translation>
    </message>
    <message>
        <source>Machine repaired: it runs %1, without a configuration.</source>
        <translation>マシンを修復しました: %1 で動作しています（設定なし）。</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. No backups in %2. Choose another backup, a product&apos;s stock configuration, or none in the Repair dialog.</source>
        <translation>何も消去していません: 修復後に戻すマシン %1 のバックアップがありません。%2 にバックアップはありません。「マシンを修復」ダイアログで、別のバックアップ、製品の標準設定、または「設定なし」を選んでください。</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. No backups in %2. Choose what goes back with --backup FILE, --product NAME or --no-config.</source>
        <translation>何も消去していません: 修復後に戻すマシン %1 のバックアップがありません。%2 にバックアップはありません。戻すものを --backup FILE、--product NAME、--no-config のいずれかで指定してください。</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. Backups in %2: %3. Choose another backup, a product&apos;s stock configuration, or none in the Repair dialog.</source>
        <translation>何も消去していません: 修復後に戻すマシン %1 のバックアップがありません。%2 のバックアップ: %3。「マシンを修復」ダイアログで、別のバックアップ、製品の標準設定、または「設定なし」を選んでください。</translation>
    </message>
    <message>
        <source>Nothing was erased: there is no backup of the machine %1 to put back after the repair. Backups in %2: %3. Choose what goes back with --backup FILE, --product NAME or --no-config.</source>
        <translation>何も消去していません: 修復後に戻すマシン %1 のバックアップがありません。%2 のバックアップ: %3。戻すものを --backup FILE、--product NAME、--no-config のいずれかで指定してください。</translation>
    </message>
    <message>
        <source>This machine has no backup of its settings. Choose what goes back after the erase.</source>
        <translation>このマシンには設定のバックアップがありません。消去後に戻すものを選んでください。</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>Before update</source>
        <translation>更新前</translation>
    </message>
    <message>
        <source>Before repair</source>
        <translation>修復前</translation>
    </message>
</context>
<context>
    <name>CatalogueTexts</name>
    <message>
        <source>&quot;%1&quot; is not a firmware catalogue: give an http:// or https:// address, a catalogue.json file or a folder that holds one.</source>
        <translation>「%1」はファームウェアカタログではありません: http:// または https:// のアドレス、catalogue.json ファイル、またはそれを含むフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>The catalogue key %1 is missing, so no firmware catalogue can be checked. Reinstall the updater, or use the bundled firmware.</source>
        <translation>カタログの鍵 %1 が見つからないため、ファームウェアカタログを検証できません。アップデーターを再インストールするか、同梱のファームウェアを使用してください。</translation>
    </message>
    <message>
        <source>The catalogue key %1 is not an Ed25519 public key, so no firmware catalogue can be checked. Reinstall the updater, or use the bundled firmware.</source>
        <translation>カタログの鍵 %1 は Ed25519 の公開鍵ではないため、ファームウェアカタログを検証できません。アップデーターを再インストールするか、同梱のファームウェアを使用してください。</translation>
    </message>
    <message>
        <source>The catalogue key %1 is the development key, which only the simulated plotter trusts. Reinstall the updater, or use the bundled firmware.</source>
        <translation>カタログの鍵 %1 は開発用の鍵で、シミュレーションのプロッターでしか信頼されません。アップデーターを再インストールするか、同梱のファームウェアを使用してください。</translation>
    </message>
    <message>
        <source>The firmware catalogue could not be read from %1 (%2). Check the address and the network connection and try again, or use the bundled firmware.</source>
        <translation>%1 からファームウェアカタログを読み込めませんでした（%2）。アドレスとネットワーク接続を確認してからもう一度試すか、同梱のファームウェアを使用してください。</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 did not arrive within %2 s. Check the network connection and try again, or use the bundled firmware.</source>
        <translation>%1 のファームウェアカタログが %2 秒以内に届きませんでした。ネットワーク接続を確認してからもう一度試すか、同梱のファームウェアを使用してください。</translation>
    </message>
    <message>
        <source>%1 is larger than a firmware catalogue can be (%2 bytes), so it was not read. Check the catalogue&apos;s address.</source>
        <translation>%1 はファームウェアカタログの上限（%2 バイト）より大きいため、読み込みませんでした。カタログのアドレスを確認してください。</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 does not carry a valid signature of this updater&apos;s publisher, so it was not used. Ask its publisher for a signed catalogue, or use the bundled firmware.</source>
        <translation>%1 のファームウェアカタログには、このアップデーターの発行元による有効な署名がないため、使用しませんでした。カタログの発行元に署名付きのカタログを依頼するか、同梱のファームウェアを使用してください。</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 cannot be used: %2. Ask its publisher to correct it, or use the bundled firmware.</source>
        <translation>%1 のファームウェアカタログは使用できません: %2。カタログの発行元に修正を依頼するか、同梱のファームウェアを使用してください。</translation>
    </message>
    <message>
        <source>The firmware catalogue at %1 was published %2, before the one already seen (%3), so it was not used: an old catalogue could bring back a withdrawn version. Use the current catalogue.</source>
        <translation>%1 のファームウェアカタログは %2 に公開されたもので、以前に確認したカタログ（%3）より古いため、使用しませんでした: 古いカタログでは、取り下げられたバージョンが再び使えるようになるおそれがあります。最新のカタログを使用してください。</translation>
    </message>
    <message>
        <source>Offline: the firmware catalogue published %1, as last seen, is shown. Connect to the network to see newer versions.</source>
        <translation>オフライン: 前回確認した、%1 に公開されたファームウェアカタログを表示しています。新しいバージョンを確認するには、ネットワークに接続してください。</translation>
    </message>
    <message>
        <source>it is not JSON (%1)</source>
        <translation>JSON ではありません（%1）</translation>
    </message>
    <message>
        <source>schema %1 is not supported</source>
        <translation>スキーマ %1 には対応していません</translation>
    </message>
    <message>
        <source>%1 is missing</source>
        <translation>%1 がありません</translation>
    </message>
    <message>
        <source>%1 is not a field of a catalogue</source>
        <translation>%1 はカタログの項目ではありません</translation>
    </message>
    <message>
        <source>%1 is not valid</source>
        <translation>%1 が正しくありません</translation>
    </message>
    <message>
        <source>firmware %1 is listed twice</source>
        <translation>ファームウェア %1 が 2 回記載されています</translation>
    </message>
    <message>
        <source>Firmware %1 is not in the firmware catalogue. Choose one of the versions it lists.</source>
        <translation>ファームウェア %1 はファームウェアカタログにありません。カタログに記載されているバージョンから選んでください。</translation>
    </message>
    <message>
        <source>Firmware %1 was withdrawn by its publisher and is not installed. Choose another version.</source>
        <translation>ファームウェア %1 は発行元によって取り下げられたため、インストールしません。別のバージョンを選んでください。</translation>
    </message>
    <message>
        <source>The image of firmware %1 could not be read from %2 (%3). Check the network connection and try again.</source>
        <translation>%2 からファームウェア %1 のイメージを読み込めませんでした（%3）。ネットワーク接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The download of firmware %1 stopped: nothing arrived for %2 s. Check the network connection and try again.</source>
        <translation>ファームウェア %1 のダウンロードが止まりました: %2 秒間何も届きませんでした。ネットワーク接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The image of firmware %1 is larger than the %2 bytes the catalogue declares, so it was not used. Choose another version, or try again later.</source>
        <translation>ファームウェア %1 のイメージがカタログに記載された %2 バイトより大きいため、使用しませんでした。別のバージョンを選ぶか、しばらくしてからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The image of firmware %1 ended after %2 of its %3 bytes. Check the network connection and try again.</source>
        <translation>ファームウェア %1 のイメージが、%3 バイト中 %2 バイトで途切れました。ネットワーク接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>The image of firmware %1 does not match the SHA-256 the catalogue declares, so it was not used. Choose another version, or try again later.</source>
        <translation>ファームウェア %1 のイメージがカタログに記載された SHA-256 と一致しないため、使用しませんでした。別のバージョンを選ぶか、しばらくしてからもう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>FileTexts</name>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>%1 は使用できません: %2</translation>
    </message>
    <message>
        <source>it could not be read (%1)</source>
        <translation>読み込めませんでした（%1）</translation>
    </message>
    <message>
        <source>Firmware image refused: %1</source>
        <translation>ファームウェアイメージを拒否しました: %1</translation>
    </message>
    <message>
        <source>Bundled %1.bin refused: a development image, not firmware</source>
        <translation>同梱の %1.bin を拒否しました: 開発用イメージであり、ファームウェアではありません</translation>
    </message>
    <message>
        <source>Firmware image: version %1, project %2, built %3</source>
        <translation>ファームウェアイメージ: バージョン %1、プロジェクト %2、ビルド日時 %3</translation>
    </message>
    <message>
        <source>Could not read file: %1</source>
        <translation>ファイルを読み込めませんでした: %1</translation>
    </message>
    <message>
        <source>%1 is not a valid machine configuration: %2</source>
        <translation>%1 は有効なマシン設定ではありません: %2</translation>
    </message>
    <message>
        <source>The development set&apos;s configurations are only for simulated plotters</source>
        <translation>開発セットの設定はシミュレーションのプロッター専用です</translation>
    </message>
    <message>
        <source>  size: %1 bytes</source>
        <translation>  サイズ: %1 バイト</translation>
    </message>
    <message>
        <source>  chip: %1 (chip id %2)</source>
        <translation>  チップ: %1（チップ ID %2）</translation>
    </message>
    <message>
        <source>  version: %1</source>
        <translation>  バージョン: %1</translation>
    </message>
    <message>
        <source>  project: %1</source>
        <translation>  プロジェクト: %1</translation>
    </message>
    <message>
        <source>  built: %1</source>
        <translation>  ビルド日時: %1</translation>
    </message>
    <message>
        <source>  partition: fits (the application partition holds %1 bytes)</source>
        <translation>  パーティション: 収まります（アプリケーションパーティションの容量は %1 バイト）</translation>
    </message>
    <message>
        <source>  partition: too large (the application partition holds %1 bytes)</source>
        <translation>  パーティション: 大きすぎます（アプリケーションパーティションの容量は %1 バイト）</translation>
    </message>
    <message>
        <source>  partition: unknown (no partition table in the resources)</source>
        <translation>  パーティション: 不明（リソースにパーティションテーブルがありません）</translation>
    </message>
    <message>
        <source>  meta: none</source>
        <translation>  meta: なし</translation>
    </message>
    <message>
        <source>  result: passes</source>
        <translation>  結果: 合格</translation>
    </message>
    <message>
        <source>  result: refused</source>
        <translation>  結果: 拒否</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>%1 is neither a firmware image (.bin) nor a machine configuration (.yaml, .yml)</source>
        <translation>%1 はファームウェアイメージ（.bin）でもマシン設定（.yaml、.yml）でもありません</translation>
    </message>
    <message>
        <source>All files pass</source>
        <translation>すべてのファイルが合格しました</translation>
    </message>
    <message>
        <source>%1 of %2 files refused</source>
        <translation>%2 個中 %1 個のファイルを拒否しました</translation>
    </message>
    <message>
        <source>Could not save log: %1</source>
        <translation>ログを保存できませんでした: %1</translation>
    </message>
</context>
<context>
    <name>FirmwareJobTexts</name>
    <message>
        <source>Device connected</source>
        <translation>デバイス接続済み</translation>
    </message>
    <message>
        <source>Waiting for device…</source>
        <translation>デバイスを待っています…</translation>
    </message>
    <message>
        <source>No device connected</source>
        <translation>デバイスが接続されていません</translation>
    </message>
    <message>
        <source>Another operation is already running</source>
        <translation>別の処理がすでに実行中です</translation>
    </message>
    <message>
        <source>Updating firmware v%1…</source>
        <translation>ファームウェア v%1 に更新しています…</translation>
    </message>
    <message>
        <source>Updating firmware (custom: %1)…</source>
        <translation>ファームウェアを更新しています（カスタム: %1）…</translation>
    </message>
    <message>
        <source>Failed to load custom firmware: %1</source>
        <translation>カスタムファームウェアを読み込めませんでした: %1</translation>
    </message>
    <message>
        <source>Bundled firmware not found</source>
        <translation>同梱のファームウェアが見つかりません</translation>
    </message>
    <message>
        <source>Checking device status…</source>
        <translation>デバイスの状態を確認しています…</translation>
    </message>
    <message>
        <source>Device not responding — writing boot partitions + firmware.</source>
        <translation>デバイスが応答しません — ブートパーティションとファームウェアを書き込みます。</translation>
    </message>
    <message>
        <source>Device running firmware %1 — updating firmware only.</source>
        <translation>デバイスはファームウェア %1 で動作中です — ファームウェアのみを更新します。</translation>
    </message>
    <message>
        <source>Flash stub not found in bundle</source>
        <translation>フラッシュ書き込み用スタブが同梱されていません</translation>
    </message>
    <message>
        <source>Missing bootloader resources for full flash</source>
        <translation>完全書き込みに必要なブートローダーのリソースがありません</translation>
    </message>
    <message>
        <source>Firmware update complete.</source>
        <translation>ファームウェアの更新が完了しました。</translation>
    </message>
    <message>
        <source>NOTE: Flash was erased. Use Config &gt; Update Config to upload the configuration for your machine.</source>
        <translation>注意: フラッシュが消去されました。設定 &gt; 設定を更新 から、お使いのマシンの設定をアップロードしてください。</translation>
    </message>
    <message>
        <source>NOTE: Flash was erased. Run teskal-flash upload-config to upload the configuration for your machine.</source>
        <translation>注意: フラッシュが消去されました。teskal-flash upload-config を実行して、お使いのマシンの設定をアップロードしてください。</translation>
    </message>
    <message>
        <source>Once the machine runs, %1 will be put back.</source>
        <translation>マシンが動き出したら、%1 を戻します。</translation>
    </message>
    <message>
        <source>Firmware version %1</source>
        <translation>ファームウェア バージョン %1</translation>
    </message>
    <message>
        <source>Using bundled firmware</source>
        <translation>同梱のファームウェアを使用</translation>
    </message>
    <message>
        <source>Custom firmware: %1</source>
        <translation>カスタムファームウェア: %1</translation>
    </message>
    <message>
        <source>Custom firmware: unknown</source>
        <translation>カスタムファームウェア: 不明</translation>
    </message>
    <message>
        <source>Checking that the machine starts…</source>
        <translation>マシンの起動を確認しています…</translation>
    </message>
    <message>
        <source>Config file not found in bundle: %1</source>
        <translation>設定ファイルが同梱されていません: %1</translation>
    </message>
    <message>
        <source>Preparing %1 config%2</source>
        <translation>%1 の設定%2 を準備しています</translation>
    </message>
    <message>
        <source>Preparing %1%2</source>
        <translation>%1%2 を準備しています</translation>
    </message>
    <message>
        <source>Uploading config file...</source>
        <translation>設定ファイルをアップロードしています...</translation>
    </message>
    <message>
        <source>Upload successful; restarting machine.</source>
        <translation>アップロードに成功しました。マシンを再起動しています。</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>準備中</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Writing firmware: stopping now can leave the machine unable to start. Press Ctrl+C again to stop.</source>
        <translation>ファームウェアを書き込み中です。今中断するとマシンが起動できなくなる場合があります。中断するにはもう一度 Ctrl+C を押してください。</translation>
    </message>
    <message>
        <source>Partition table: present</source>
        <translation>パーティションテーブル: あり</translation>
    </message>
    <message>
        <source>Partition table: absent</source>
        <translation>パーティションテーブル: なし</translation>
    </message>
    <message>
        <source>1 plotter connected</source>
        <translation>1 台のプロッターが接続されています</translation>
    </message>
    <message>
        <source>%1 plotters connected</source>
        <translation>%1 台のプロッターが接続されています</translation>
    </message>
    <message>
        <source>Could not start the simulated plotter: %1</source>
        <translation>シミュレーションのプロッターを起動できませんでした: %1</translation>
    </message>
</context>
<context>
    <name>OutcomeTexts</name>
    <message>
        <source>No device found. Is it connected?</source>
        <translation>デバイスが見つかりません。接続されていますか?</translation>
    </message>
    <message>
        <source>No device found. Is it connected? Run teskal-flash doctor to see why.</source>
        <translation>デバイスが見つかりません。接続されていますか? teskal-flash doctor を実行すると原因がわかります。</translation>
    </message>
    <message>
        <source>Could not open serial port. Is another app using it?</source>
        <translation>シリアルポートを開けませんでした。別のアプリが使用していませんか?</translation>
    </message>
    <message>
        <source>Failed to sync with device. Try unplugging and reconnecting.</source>
        <translation>デバイスと同期できませんでした。ケーブルを抜いて、もう一度接続してください。</translation>
    </message>
    <message>
        <source>Unexpected chip detected. Verify hardware.</source>
        <translation>想定外のチップが検出されました。ハードウェアを確認してください。</translation>
    </message>
    <message>
        <source>Failed to upload communication stub.</source>
        <translation>通信用スタブをアップロードできませんでした。</translation>
    </message>
    <message>
        <source>Flash write failed. Try again.</source>
        <translation>フラッシュへの書き込みに失敗しました。もう一度お試しください。</translation>
    </message>
    <message>
        <source>Verification failed. Flash may be corrupted — try again.</source>
        <translation>検証に失敗しました。フラッシュが破損している可能性があります — もう一度お試しください。</translation>
    </message>
    <message>
        <source>Config upload failed.</source>
        <translation>設定のアップロードに失敗しました。</translation>
    </message>
    <message>
        <source>Operation timed out. Try unplugging and reconnecting.</source>
        <translation>処理がタイムアウトしました。ケーブルを抜いて、もう一度接続してください。</translation>
    </message>
    <message>
        <source>Device disconnected during operation.</source>
        <translation>処理中にデバイスが切断されました。</translation>
    </message>
    <message>
        <source>Unknown error (code %1)</source>
        <translation>不明なエラー（コード %1）</translation>
    </message>
    <message>
        <source>Close any other program that uses the port, unplug and reconnect the machine, and try again.</source>
        <translation>ポートを使用しているほかのプログラムをすべて閉じ、マシンのケーブルを抜き差ししてから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Unplug the machine, plug it in again, and try again.</source>
        <translation>マシンのケーブルを抜いて、もう一度差し込み、もう一度お試しください。</translation>
    </message>
    <message>
        <source>This controller cannot take this firmware; contact support before trying again.</source>
        <translation>このコントローラーにはこのファームウェアを書き込めません。もう一度試す前にサポートにお問い合わせください。</translation>
    </message>
    <message>
        <source>Try again; if it fails again, use another USB cable or port.</source>
        <translation>もう一度お試しください。再び失敗する場合は、別の USB ケーブルまたはポートを使ってください。</translation>
    </message>
    <message>
        <source>Firmware %1 installed and running.</source>
        <translation>ファームウェア %1 をインストールし、動作しています。</translation>
    </message>
    <message>
        <source>Firmware installed and running.</source>
        <translation>ファームウェアをインストールし、動作しています。</translation>
    </message>
    <message>
        <source>Firmware written and verified, but the machine reports version %1, not %2.</source>
        <translation>ファームウェアの書き込みと検証は完了しましたが、マシンはバージョン %2 ではなく %1 と報告しています。</translation>
    </message>
    <message>
        <source>Firmware written and verified, but the machine did not answer to confirm that it runs.</source>
        <translation>ファームウェアの書き込みと検証は完了しましたが、動作を確認する応答がマシンからありませんでした。</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it restarts in a loop.</source>
        <translation>ファームウェアを書き込みましたが、マシンが起動しません: 再起動を繰り返しています。</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it crashed at start-up.</source>
        <translation>ファームウェアを書き込みましたが、マシンが起動しません: 起動時にクラッシュしました。</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: it finds no firmware to start.</source>
        <translation>ファームウェアを書き込みましたが、マシンが起動しません: 起動するファームウェアが見つかりません。</translation>
    </message>
    <message>
        <source>Firmware written, but the machine does not start: its power supply is too weak.</source>
        <translation>ファームウェアを書き込みましたが、マシンが起動しません: 電源が不足しています。</translation>
    </message>
    <message>
        <source>Configuration uploaded; the machine restarted with it.</source>
        <translation>設定をアップロードしました。マシンはその設定で再起動しました。</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine did not answer after its restart.</source>
        <translation>設定をアップロードしましたが、再起動後にマシンから応答がありませんでした。</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it restarts in a loop.</source>
        <translation>設定をアップロードしましたが、マシンが起動しません: 再起動を繰り返しています。</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it crashed at start-up.</source>
        <translation>設定をアップロードしましたが、マシンが起動しません: 起動時にクラッシュしました。</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: it finds no firmware to start.</source>
        <translation>設定をアップロードしましたが、マシンが起動しません: 起動するファームウェアが見つかりません。</translation>
    </message>
    <message>
        <source>Configuration uploaded, but the machine does not start: its power supply is too weak.</source>
        <translation>設定をアップロードしましたが、マシンが起動しません: 電源が不足しています。</translation>
    </message>
    <message>
        <source>The machine rejected its configuration:</source>
        <translation>マシンが設定を受け付けませんでした:</translation>
    </message>
    <message>
        <source>Plug in the machine&apos;s own power supply (USB power is not enough), then try again.</source>
        <translation>マシン専用の電源を接続してから（USB 給電では足りません）、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Correct the configuration and upload it again, or upload a product&apos;s configuration from Config &gt; Update Config.</source>
        <translation>設定を修正してもう一度アップロードするか、設定 &gt; 設定を更新 から製品の設定をアップロードしてください。</translation>
    </message>
    <message>
        <source>Correct the configuration and run teskal-flash upload-config again, or upload a product&apos;s with --product NAME.</source>
        <translation>設定を修正して teskal-flash upload-config をもう一度実行するか、--product NAME で製品の設定をアップロードしてください。</translation>
    </message>
    <message>
        <source>Run the update again.</source>
        <translation>もう一度更新を実行してください。</translation>
    </message>
    <message>
        <source>Run teskal-flash flash again.</source>
        <translation>もう一度 teskal-flash flash を実行してください。</translation>
    </message>
    <message>
        <source>Check that the machine is switched on and connected; if it still does not answer, run the update again.</source>
        <translation>マシンの電源が入っていて接続されているか確認してください。それでも応答しない場合は、もう一度更新を実行してください。</translation>
    </message>
    <message>
        <source>Check that the machine is switched on and connected, then run teskal-flash version.</source>
        <translation>マシンの電源が入っていて接続されているか確認してから、teskal-flash version を実行してください。</translation>
    </message>
    <message>
        <source>Press Repair… to erase the machine, install the firmware again and put back your settings. If it keeps happening, save the log (File &gt; Save Log…) for support.</source>
        <translation>「修復…」を押すと、マシンを消去してファームウェアを再インストールし、設定を戻します。繰り返し起こる場合は、ログを保存して（ファイル &gt; ログを保存…）サポートに送ってください。</translation>
    </message>
    <message>
        <source>Run teskal-flash repair to erase the machine, install the firmware again and put back your settings. If it keeps happening, keep this output for support.</source>
        <translation>teskal-flash repair を実行すると、マシンを消去してファームウェアを再インストールし、設定を戻します。繰り返し起こる場合は、この出力をサポート用に保存してください。</translation>
    </message>
    <message>
        <source>ended without a result</source>
        <translation>結果を出さずに終了しました</translation>
    </message>
    <message>
        <source>ended abnormally after its result</source>
        <translation>結果の後に異常終了しました</translation>
    </message>
    <message>
        <source>ended abnormally after its result: %1</source>
        <translation>結果の後に異常終了しました: %1</translation>
    </message>
</context>
<context>
    <name>PortTexts</name>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 は存在しません。</translation>
    </message>
    <message>
        <source>%1 is not a serial port.</source>
        <translation>%1 はシリアルポートではありません。</translation>
    </message>
    <message>
        <source>Permission denied on %1 (group %2).</source>
        <translation>%1 へのアクセスが拒否されました（グループ %2）。</translation>
    </message>
    <message>
        <source>Permission denied on %1 (owner %2, mode %3).</source>
        <translation>%1 へのアクセスが拒否されました（所有者 %2、モード %3）。</translation>
    </message>
    <message>
        <source>Permission denied on %1.</source>
        <translation>%1 へのアクセスが拒否されました。</translation>
    </message>
    <message>
        <source>%1 is in use by %2 (pid %3).</source>
        <translation>%1 は %2 が使用中です（pid %3）。</translation>
    </message>
    <message>
        <source>%1 is in use by another program.</source>
        <translation>%1 はほかのプログラムが使用中です。</translation>
    </message>
    <message>
        <source>%1 does not answer: its device has gone.</source>
        <translation>%1 が応答しません: デバイスがなくなりました。</translation>
    </message>
    <message>
        <source>%1 can be used.</source>
        <translation>%1 を使用できます。</translation>
    </message>
    <message>
        <source>Plug the plotter in, or name another port.</source>
        <translation>プロッターを接続するか、別のポートを指定してください。</translation>
    </message>
    <message>
        <source>Name the plotter&apos;s port, for example /dev/ttyACM0.</source>
        <translation>プロッターのポートを指定してください（例: /dev/ttyACM0）。</translation>
    </message>
    <message>
        <source>Install the permission rule (%1).</source>
        <translation>権限ルールをインストールしてください（%1）。</translation>
    </message>
    <message>
        <source>You are in the group %1, but this session began before you joined it: log out and in again.</source>
        <translation>グループ %1 に所属していますが、このセッションは参加前に始まったものです: いったんログアウトして、もう一度ログインしてください。</translation>
    </message>
    <message>
        <source>Install the permission rule (%1), or join the group: sudo usermod -aG %2 $USER, then log out and in again.</source>
        <translation>権限ルールをインストールするか（%1）、グループに参加してください: sudo usermod -aG %2 $USER を実行し、ログアウトしてもう一度ログインします。</translation>
    </message>
    <message>
        <source>Close that program and try again.</source>
        <translation>そのプログラムを閉じて、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Close it and try again.</source>
        <translation>それを閉じて、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Unplug the plotter, plug it in again and try again.</source>
        <translation>プロッターのケーブルを抜いて、もう一度差し込み、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Connection Check</source>
        <translation>接続チェック</translation>
    </message>
    <message>
        <source>button below</source>
        <translation>下のボタン</translation>
    </message>
    <message>
        <source>sudo cp %1 /etc/udev/rules.d/ &amp;&amp; sudo udevadm control --reload &amp;&amp; sudo udevadm trigger</source>
        <translation>sudo cp %1 /etc/udev/rules.d/ &amp;&amp; sudo udevadm control --reload &amp;&amp; sudo udevadm trigger</translation>
    </message>
    <message>
        <source>60-teskal-firmware-updater.rules in /etc/udev/rules.d</source>
        <translation>/etc/udev/rules.d の 60-teskal-firmware-updater.rules</translation>
    </message>
    <message>
        <source>Plotter seen on USB (303a:1001).</source>
        <translation>USB でプロッターを検出しました（303a:1001）。</translation>
    </message>
    <message>
        <source>Plotter seen on USB (303a:1001, serial %1).</source>
        <translation>USB でプロッターを検出しました（303a:1001、シリアル番号 %1）。</translation>
    </message>
    <message>
        <source>No plotter seen on USB.</source>
        <translation>USB でプロッターが検出されません。</translation>
    </message>
    <message>
        <source>Switch it on, try another USB port, and use a cable that carries data: some cables only charge.</source>
        <translation>電源を入れ、別の USB ポートを試し、データ通信に対応したケーブルを使ってください: 充電専用のケーブルもあります。</translation>
    </message>
    <message>
        <source>Serial port %1 made for it by %2.</source>
        <translation>%2 がシリアルポート %1 を作成しました。</translation>
    </message>
    <message>
        <source>No serial port made for it: the kernel&apos;s cdc_acm driver is missing.</source>
        <translation>シリアルポートが作成されていません: カーネルの cdc_acm ドライバーがありません。</translation>
    </message>
    <message>
        <source>Install your system&apos;s extra kernel modules, or load the driver: sudo modprobe cdc_acm</source>
        <translation>システムの追加カーネルモジュールをインストールするか、ドライバーを読み込んでください: sudo modprobe cdc_acm</translation>
    </message>
    <message>
        <source>No serial port made for it yet.</source>
        <translation>シリアルポートはまだ作成されていません。</translation>
    </message>
    <message>
        <source>Wait a moment; if it stays so, unplug the plotter and plug it in again.</source>
        <translation>しばらくお待ちください。変わらない場合は、プロッターのケーブルを抜いて、もう一度差し込んでください。</translation>
    </message>
    <message>
        <source>You may open %1.</source>
        <translation>%1 を開くことができます。</translation>
    </message>
    <message>
        <source>No other program is using %1.</source>
        <translation>%1 を使用しているほかのプログラムはありません。</translation>
    </message>
    <message>
        <source>Another plotter: %1.</source>
        <translation>別のプロッター: %1。</translation>
    </message>
    <message>
        <source>Another plotter (serial %1): %2.</source>
        <translation>別のプロッター（シリアル番号 %1）: %2。</translation>
    </message>
    <message>
        <source>without a port</source>
        <translation>ポートなし</translation>
    </message>
    <message>
        <source>Not a plotter: %1 on %2.</source>
        <translation>プロッターではありません: %2 の %1。</translation>
    </message>
    <message>
        <source>Ready: the plotter on %1 can be used.</source>
        <translation>準備完了: %1 のプロッターを使用できます。</translation>
    </message>
    <message>
        <source>No plotter is ready to use.</source>
        <translation>使用できるプロッターがありません。</translation>
    </message>
    <message>
        <source>The plotter keeps restarting.</source>
        <translation>プロッターが再起動を繰り返しています。</translation>
    </message>
    <message>
        <source>If its controller board has a BOOT button, hold it while you plug the plotter in, then press Repair.</source>
        <translation>コントローラーボードに BOOT ボタンがある場合は、それを押したままプロッターを接続し、「修復」を押してください。</translation>
    </message>
    <message>
        <source>If its controller board has a BOOT button, hold it while you plug the plotter in, then run teskal-flash repair.</source>
        <translation>コントローラーボードに BOOT ボタンがある場合は、それを押したままプロッターを接続し、teskal-flash repair を実行してください。</translation>
    </message>
    <message>
        <source>Plotter not found?</source>
        <translation>プロッターが見つかりませんか?</translation>
    </message>
    <message>
        <source>Checked again every second. This window closes once the plotter can be used.</source>
        <translation>1 秒ごとに確認しています。プロッターが使えるようになると、このウィンドウは閉じます。</translation>
    </message>
    <message>
        <source>&amp;Install Permission Rule…</source>
        <translation>権限ルールをインストール(&amp;I)…</translation>
    </message>
    <message>
        <source>pkexec or the rule&apos;s installer is missing. Run by hand: %1</source>
        <translation>pkexec またはルールのインストーラーがありません。手動で実行してください: %1</translation>
    </message>
    <message>
        <source>The permission rule&apos;s installer could not be started.</source>
        <translation>権限ルールのインストーラーを起動できませんでした。</translation>
    </message>
</context>
<context>
    <name>ReleaseTexts</name>
    <message>
        <source>No firmware catalogue is configured. Choose one with File &gt; Firmware Catalogue…, or use the bundled firmware.</source>
        <translation>ファームウェアカタログが設定されていません。ファイル &gt; ファームウェアカタログ… で選ぶか、同梱のファームウェアを使用してください。</translation>
    </message>
    <message>
        <source>No firmware catalogue is configured. Name one with --catalogue URL|FILE|FOLDER, or use the bundled firmware.</source>
        <translation>ファームウェアカタログが設定されていません。--catalogue URL|FILE|FOLDER で指定するか、同梱のファームウェアを使用してください。</translation>
    </message>
    <message>
        <source>Fetching firmware %1 from the catalogue at %2…</source>
        <translation>%2 のカタログからファームウェア %1 を取得しています…</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>ダウンロード中</translation>
    </message>
    <message>
        <source>Updating firmware %1 from the catalogue…</source>
        <translation>カタログのファームウェア %1 に更新しています…</translation>
    </message>
    <message>
        <source>Firmware %1 is older than the firmware %2 this machine runs, so nothing was written.</source>
        <translation>ファームウェア %1 はこのマシンで動作中のファームウェア %2 より古いため、何も書き込んでいません。</translation>
    </message>
    <message>
        <source>Firmware %1 is older than the firmware %2 this machine runs, so nothing was written. Add --allow-older to install it anyway.</source>
        <translation>ファームウェア %1 はこのマシンで動作中のファームウェア %2 より古いため、何も書き込んでいません。それでもインストールするには --allow-older を付けてください。</translation>
    </message>
    <message>
        <source>bundled</source>
        <translation>同梱</translation>
    </message>
    <message>
        <source>catalogue</source>
        <translation>カタログ</translation>
    </message>
    <message>
        <source>stable</source>
        <translation>安定版</translation>
    </message>
    <message>
        <source>beta</source>
        <translation>ベータ版</translation>
    </message>
    <message>
        <source>1 firmware version can be installed.</source>
        <translation>インストールできるファームウェアのバージョンが 1 件あります。</translation>
    </message>
    <message>
        <source>%1 firmware versions can be installed.</source>
        <translation>インストールできるファームウェアのバージョンが %1 件あります。</translation>
    </message>
    <message>
        <source>Firmware &amp;Catalogue…</source>
        <translation>ファームウェアカタログ(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose Firmware &amp;Version…</source>
        <translation>ファームウェアのバージョンを選択(&amp;V)…</translation>
    </message>
    <message>
        <source>Firmware version %1 from the catalogue</source>
        <translation>カタログのファームウェア バージョン %1</translation>
    </message>
    <message>
        <source>Firmware %1 is available</source>
        <translation>ファームウェア %1 が利用できます</translation>
    </message>
    <message>
        <source>Firmware Catalogue</source>
        <translation>ファームウェアカタログ</translation>
    </message>
    <message>
        <source>Where the firmware catalogue is: an http:// or https:// address, a catalogue.json file, or a folder that holds one (for instance on a USB stick).</source>
        <translation>ファームウェアカタログの場所: http:// または https:// のアドレス、catalogue.json ファイル、またはそれを含むフォルダー（USB メモリー上のフォルダーなど）。</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>ファイルを選択(&amp;F)…</translation>
    </message>
    <message>
        <source>Choose F&amp;older…</source>
        <translation>フォルダーを選択(&amp;O)…</translation>
    </message>
    <message>
        <source>Firmware catalogue: %1</source>
        <translation>ファームウェアカタログ: %1</translation>
    </message>
    <message>
        <source>Choose Firmware Version</source>
        <translation>ファームウェアのバージョンを選択</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Show &amp;beta versions</source>
        <translation>ベータ版を表示(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Use This Version</source>
        <translation>このバージョンを使用(&amp;U)</translation>
    </message>
    <message>
        <source>ran on this machine</source>
        <translation>このマシンで動作実績あり</translation>
    </message>
    <message>
        <source>Reading the firmware catalogue…</source>
        <translation>ファームウェアカタログを読み込んでいます…</translation>
    </message>
    <message>
        <source>No firmware catalogue is configured: only the bundled firmware is listed. Choose a catalogue with File &gt; Firmware Catalogue….</source>
        <translation>ファームウェアカタログが設定されていません: 同梱のファームウェアのみを表示しています。ファイル &gt; ファームウェアカタログ… でカタログを選んでください。</translation>
    </message>
    <message>
        <source>Firmware %1 from the catalogue will be written.</source>
        <translation>カタログのファームウェア %1 を書き込みます。</translation>
    </message>
    <message>
        <source>Install an Older Version?</source>
        <translation>古いバージョンをインストールしますか?</translation>
    </message>
    <message>
        <source>This machine runs firmware %1. Install the older firmware %2 in its place?</source>
        <translation>このマシンではファームウェア %1 が動作しています。代わりに古いファームウェア %2 をインストールしますか?</translation>
    </message>
    <message>
        <source>&amp;Install Older Version</source>
        <translation>古いバージョンをインストール(&amp;I)</translation>
    </message>
</context>
<context>
    <name>SnapshotTexts</name>
    <message>
        <source>Taking a snapshot of the whole machine…</source>
        <translation>マシン全体のスナップショットを作成しています…</translation>
    </message>
    <message>
        <source>Snapshot of the whole machine saved to %1 (%2 bytes).</source>
        <translation>マシン全体のスナップショットを %1 に保存しました（%2 バイト）。</translation>
    </message>
    <message>
        <source>the machine&apos;s flash holds nothing worth keeping (no bootloader and no partition table)</source>
        <translation>マシンのフラッシュには残しておくべきものがありません（ブートローダーもパーティションテーブルもありません）</translation>
    </message>
    <message>
        <source>No snapshot of the whole machine could be taken: %1</source>
        <translation>マシン全体のスナップショットを作成できませんでした: %1</translation>
    </message>
    <message>
        <source>the flasher stub refused to read the flash</source>
        <translation>フラッシュ書き込み用スタブがフラッシュの読み込みを拒否しました</translation>
    </message>
    <message>
        <source>the machine sent nothing for 5 s while its flash was read</source>
        <translation>フラッシュの読み込み中、マシンから 5 秒間何も送られてきませんでした</translation>
    </message>
    <message>
        <source>what the machine sent of its flash arrived damaged</source>
        <translation>マシンから送られてきたフラッシュの内容が壊れていました</translation>
    </message>
    <message>
        <source>the MD5 the machine computed differs from that of the bytes received</source>
        <translation>マシンが計算した MD5 が、受信したデータの MD5 と異なります</translation>
    </message>
    <message>
        <source>the snapshot could not be written on this computer</source>
        <translation>このコンピューターにスナップショットを書き込めませんでした</translation>
    </message>
    <message>
        <source>the flash could not be read (%1)</source>
        <translation>フラッシュを読み込めませんでした（%1）</translation>
    </message>
    <message>
        <source>%1 Nothing was written.</source>
        <translation>%1 何も書き込んでいません。</translation>
    </message>
    <message>
        <source>The machine was left as it was. Check the USB cable and try again.</source>
        <translation>マシンは元の状態のままです。USB ケーブルを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>No snapshot is needed: the machine&apos;s flash holds nothing worth keeping.</source>
        <translation>スナップショットは不要です: マシンのフラッシュには残しておくべきものがありません。</translation>
    </message>
    <message>
        <source>Whole machine backed up</source>
        <translation>マシン全体をバックアップしました</translation>
    </message>
    <message>
        <source>application</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>data</source>
        <translation>データ</translation>
    </message>
    <message>
        <source>Putting back the snapshot of the whole machine from %1 (%2)…</source>
        <translation>%1 時点のマシン全体のスナップショットを戻しています（%2）…</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>%1 は使用できません: %2</translation>
    </message>
    <message>
        <source>Could not read the snapshot %1: %2</source>
        <translation>スナップショット %1 を読み込めませんでした: %2</translation>
    </message>
    <message>
        <source>No snapshot of the machine %1 in %2</source>
        <translation>%2 にマシン %1 のスナップショットはありません</translation>
    </message>
    <message>
        <source>No snapshot %1 in %2</source>
        <translation>%2 にスナップショット %1 はありません</translation>
    </message>
    <message>
        <source>This snapshot was taken of the machine %1, not of %2; it carries that machine&apos;s settings and network credentials. Add --other-machine to put it on %2 anyway.</source>
        <translation>このスナップショットは %2 ではなく、マシン %1 で作成されたものです。そのマシンの設定とネットワークの認証情報が含まれています。それでも %2 に復元するには --other-machine を付けてください。</translation>
    </message>
    <message>
        <source>This snapshot was taken of the machine %1. It carries that machine&apos;s settings and network credentials. Put it on this machine (%2) anyway?</source>
        <translation>このスナップショットはマシン %1 で作成されたものです。そのマシンの設定とネットワークの認証情報が含まれています。それでもこのマシン（%2）に復元しますか?</translation>
    </message>
    <message>
        <source>&amp;Restore Anyway</source>
        <translation>それでも復元(&amp;R)</translation>
    </message>
    <message>
        <source>Machine put back as it was on %1: it runs firmware %2.</source>
        <translation>マシンを %1 時点の状態に戻しました: ファームウェア %2 で動作しています。</translation>
    </message>
    <message>
        <source>Machine put back as it was on %1: it runs.</source>
        <translation>マシンを %1 時点の状態に戻しました: 動作しています。</translation>
    </message>
    <message>
        <source>Press Undo Update to put the machine back as it was before the update, or Repair… to erase it and install the firmware again.</source>
        <translation>「更新を元に戻す」を押すと、マシンを更新前の状態に戻します。「修復…」を押すと、マシンを消去してファームウェアを再インストールします。</translation>
    </message>
    <message>
        <source>To put the machine back as it was before the update, run: teskal-flash restore-machine %1</source>
        <translation>マシンを更新前の状態に戻すには、次のコマンドを実行してください: teskal-flash restore-machine %1</translation>
    </message>
    <message>
        <source>The machine was put back as it was before the update.</source>
        <translation>マシンを更新前の状態に戻しました。</translation>
    </message>
    <message>
        <source>Putting the machine back as it was before the update…</source>
        <translation>マシンを更新前の状態に戻しています…</translation>
    </message>
    <message>
        <source>The machine could not be put back: %1</source>
        <translation>マシンを元に戻せませんでした: %1</translation>
    </message>
    <message>
        <source>Back Up &amp;Whole Machine…</source>
        <translation>マシン全体をバックアップ(&amp;W)…</translation>
    </message>
    <message>
        <source>Restore W&amp;hole Machine…</source>
        <translation>マシン全体を復元(&amp;H)…</translation>
    </message>
    <message>
        <source>&amp;Snapshot Before Writing</source>
        <translation>書き込み前にスナップショットを作成(&amp;S)</translation>
    </message>
    <message>
        <source>Undo Update</source>
        <translation>更新を元に戻す</translation>
    </message>
    <message>
        <source>Take a &amp;snapshot of the whole machine first</source>
        <translation>先にマシン全体のスナップショットを作成する(&amp;S)</translation>
    </message>
    <message>
        <source>Restore Whole Machine</source>
        <translation>マシン全体を復元</translation>
    </message>
    <message>
        <source>Ran</source>
        <translation>動作中</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Every snapshot of a whole machine is kept in %1. The connected machine&apos;s are on top, newest first.</source>
        <translation>マシン全体のスナップショットはすべて %1 に保存されます。接続中のマシンのスナップショットが上に、新しいものから順に表示されます。</translation>
    </message>
    <message>
        <source>No snapshot has been taken yet. Config &gt; Back Up Whole Machine… takes one, and so does every firmware write with Options &gt; Snapshot Before Writing; they are kept in %1.</source>
        <translation>まだスナップショットは作成されていません。設定 &gt; マシン全体をバックアップ… で作成できるほか、オプション &gt; 書き込み前にスナップショットを作成 がオンのときは、ファームウェアを書き込むたびに作成されます。スナップショットは %1 に保存されます。</translation>
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
        <translation>%1 %2、ビルド日時 %3、同梱ファームウェア %4</translation>
    </message>
    <message>
        <source>Teskal Firmware Updater — simulated plotter</source>
        <translation>Teskal Firmware Updater — シミュレーションのプロッター</translation>
    </message>
    <message>
        <source>Teskal Firmware Updater is already running.</source>
        <translation>Teskal Firmware Updater はすでに起動しています。</translation>
    </message>
    <message>
        <source>&amp;Teskal Firmware Updater</source>
        <translation>Teskal Firmware Updater(&amp;T)</translation>
    </message>
    <message>
        <source>About Teskal Firmware Updater</source>
        <translation>Teskal Firmware Updater について</translation>
    </message>
    <message>
        <source>&amp;About Teskal Firmware Updater</source>
        <translation>Teskal Firmware Updater について(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open Firmware File…</source>
        <translation>ファームウェアファイルを開く(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Use Bundled Firmware</source>
        <translation>同梱のファームウェアを使用(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Save Log…</source>
        <translation>ログを保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>オプション(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Detailed Logging</source>
        <translation>詳細なログ(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Write Boot Partitions</source>
        <translation>ブートパーティションを書き込む(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Erase All Flash</source>
        <translation>フラッシュ全体を消去(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Back Up Machine Config Before Upload</source>
        <translation>アップロード前にマシンの設定をバックアップ(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Config</source>
        <translation>設定(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Update Config</source>
        <translation>設定を更新(&amp;U)</translation>
    </message>
    <message>
        <source>No products configured</source>
        <translation>製品が設定されていません</translation>
    </message>
    <message>
        <source>Select from &amp;Disk...</source>
        <translation>ディスクから選択(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Save Machine Config…</source>
        <translation>マシンの設定を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Compare With Machine…</source>
        <translation>マシンと比較(&amp;C)…</translation>
    </message>
    <message>
        <source>Choose &amp;File…</source>
        <translation>ファイルを選択(&amp;F)…</translation>
    </message>
    <message>
        <source>&amp;Restore Machine Config…</source>
        <translation>マシンの設定を復元(&amp;R)…</translation>
    </message>
    <message>
        <source>Re&amp;pair Machine…</source>
        <translation>マシンを修復(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Connection Check…</source>
        <translation>接続チェック(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Simulated Plotter</source>
        <translation>シミュレーションのプロッター(&amp;S)</translation>
    </message>
    <message>
        <source>Starts: %1</source>
        <translation>起動: %1</translation>
    </message>
    <message>
        <source>Select a firmware binary (.bin)</source>
        <translation>ファームウェアのバイナリを選択（.bin）</translation>
    </message>
    <message>
        <source>Select a configuration file (.yaml)</source>
        <translation>設定ファイルを選択（.yaml）</translation>
    </message>
    <message>
        <source>Save Log</source>
        <translation>ログを保存</translation>
    </message>
    <message>
        <source>Text files (*.txt)</source>
        <translation>テキストファイル (*.txt)</translation>
    </message>
    <message>
        <source>Save Machine Config</source>
        <translation>マシンの設定を保存</translation>
    </message>
    <message>
        <source>YAML files (*.yaml *.yml)</source>
        <translation>YAML ファイル (*.yaml *.yml)</translation>
    </message>
    <message>
        <source>Choose a %1 file.</source>
        <translation>%1 ファイルを選んでください。</translation>
    </message>
    <message>
        <source>Choose a %1 or %2 file.</source>
        <translation>%1 または %2 ファイルを選んでください。</translation>
    </message>
    <message>
        <source>Update Firmware</source>
        <translation>ファームウェアを更新</translation>
    </message>
    <message>
        <source>Copy log to clipboard</source>
        <translation>ログをクリップボードにコピー</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Restore Previous Configuration</source>
        <translation>以前の設定を復元</translation>
    </message>
    <message>
        <source>Repair…</source>
        <translation>修復…</translation>
    </message>
    <message>
        <source>Erase All Flash also erases the machine&apos;s settings (config.yaml). Save them now and put them back after the update?</source>
        <translation>「フラッシュ全体を消去」を行うと、マシンの設定（config.yaml）も消去されます。今保存して、更新後に戻しますか?</translation>
    </message>
    <message>
        <source>Erase all flash anyway? The settings will be lost.</source>
        <translation>それでもフラッシュ全体を消去しますか? 設定は失われます。</translation>
    </message>
    <message>
        <source>Try reading them again?</source>
        <translation>もう一度読み込みを試しますか?</translation>
    </message>
    <message>
        <source>&amp;Save and Restore</source>
        <translation>保存して戻す(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Erase Without Saving</source>
        <translation>保存せずに消去(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>An update is running. Quitting now can leave the machine unable to start. Quit anyway?</source>
        <translation>更新を実行中です。今終了すると、マシンが起動できなくなる場合があります。それでも終了しますか?</translation>
    </message>
    <message>
        <source>&amp;Keep Running</source>
        <translation>実行を続ける(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Quit Anyway</source>
        <translation>それでも終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Restore Machine Config</source>
        <translation>マシンの設定を復元</translation>
    </message>
    <message>
        <source>Co&amp;mpare With Machine</source>
        <translation>マシンと比較(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>復元(&amp;R)</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>理由</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>ファームウェア</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>マシン</translation>
    </message>
    <message>
        <source>Repair Machine</source>
        <translation>マシンを修復</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修復(&amp;R)</translation>
    </message>
    <message>
        <source>Put back:</source>
        <translation>戻す設定:</translation>
    </message>
    <message>
        <source>Newest backup of this machine (%1)</source>
        <translation>このマシンの最新のバックアップ（%1）</translation>
    </message>
    <message>
        <source>Current settings of this machine, saved first</source>
        <translation>このマシンの現在の設定（先に保存します）</translation>
    </message>
    <message>
        <source>Choose what goes back…</source>
        <translation>戻すものを選んでください…</translation>
    </message>
    <message>
        <source>Backup of %1 (%2)</source>
        <translation>%1 のバックアップ（%2）</translation>
    </message>
    <message>
        <source>Stock configuration: %1</source>
        <translation>標準設定: %1</translation>
    </message>
    <message>
        <source>No configuration</source>
        <translation>設定なし</translation>
    </message>
    <message>
        <source>Asking the machine&apos;s firmware whether it answers…</source>
        <translation>マシンのファームウェアが応答するか確認しています…</translation>
    </message>
    <message>
        <source>Compare With Machine — %1</source>
        <translation>マシンと比較 — %1</translation>
    </message>
    <message>
        <source>&amp;Upload This Configuration</source>
        <translation>この設定をアップロード(&amp;U)</translation>
    </message>
    <message>
        <source>By Key</source>
        <translation>キー単位</translation>
    </message>
    <message>
        <source>By Line</source>
        <translation>行単位</translation>
    </message>
    <message>
        <source>No key differs.</source>
        <translation>異なるキーはありません。</translation>
    </message>
    <message>
        <source>The files are the same line by line.</source>
        <translation>ファイルは行単位で同じです。</translation>
    </message>
    <message>
        <source>The two configurations could not be compared by key; &quot;By Line&quot; shows how their texts differ.</source>
        <translation>2 つの設定をキー単位で比較できませんでした。「行単位」でテキストの違いを確認できます。</translation>
    </message>
    <message>
        <source>The machine&apos;s config matches %1 by key: an upload would change no setting.</source>
        <translation>マシンの設定はキー単位で %1 と一致しています: アップロードしても変わる設定はありません。</translation>
    </message>
    <message>
        <source>1 setting differs between the machine&apos;s config and %1. Each line shows the machine&apos;s value → the new one; + marks a key only in %1, - a key only on the machine.</source>
        <translation>マシンの設定と %1 で 1 個の設定が異なります。各行はマシンの値 → 新しい値を示します。+ は %1 にだけあるキー、- はマシンにだけあるキーです。</translation>
    </message>
    <message>
        <source>%1 settings differ between the machine&apos;s config and %2. Each line shows the machine&apos;s value → the new one; + marks a key only in %2, - a key only on the machine.</source>
        <translation>マシンの設定と %2 で %1 個の設定が異なります。各行はマシンの値 → 新しい値を示します。+ は %2 にだけあるキー、- はマシンにだけあるキーです。</translation>
    </message>
    <message>
        <source>Firmware v%1 (build %2)</source>
        <translation>ファームウェア v%1（ビルド %2）</translation>
    </message>
    <message>
        <source>Program version %1</source>
        <translation>プログラム バージョン %1</translation>
    </message>
    <message>
        <source>Supported products:</source>
        <translation>対応製品:</translation>
    </message>
    <message>
        <source>Licenses:</source>
        <translation>ライセンス:</translation>
    </message>
    <message>
        <source>Firmware: GPL v3 (based on FluidNC)</source>
        <translation>ファームウェア: GPL v3（FluidNC ベース）</translation>
    </message>
    <message>
        <source>Flash stub: Apache License 2.0</source>
        <translation>フラッシュ書き込み用スタブ: Apache License 2.0</translation>
    </message>
    <message>
        <source>Source:</source>
        <translation>ソース:</translation>
    </message>
    <message>
        <source>© 2026 Corvane. All rights reserved.</source>
        <translation>© 2026 Corvane. All rights reserved.</translation>
    </message>
</context>
</TS>
